# The programs that are run on Windows itself, or under Wine in a prefix of
# scripts/prefix; never by the build.
file(GLOB sources CONFIGURE_DEPENDS contract/*_contract_test.cc contract/win32_*.cc
     windows/*_test.cc)
add_executable(test_contract ${sources} windows/display.cc)
target_link_libraries(test_contract PRIVATE tavr_services tavr_win32 gmock_main wininet)
target_precompile_headers(test_contract REUSE_FROM tavr_test_headers)

# Started by test_contract under other names; it looks for them beside itself.
add_executable(sleeper WIN32 windows/sleeper.cc)
add_executable(recorder WIN32 windows/recorder.cc)
add_dependencies(test_contract sleeper recorder)

include(windows/programs.cmake)

include(windows/drawing.cmake)

include(windows/accessible.cmake)
include(windows/window.cmake)
include(windows/screenshots.cmake)
