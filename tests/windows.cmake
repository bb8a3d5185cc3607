# The programs that are run on Windows itself, or under Wine in a prefix of
# scripts/prefix; never by the build.
file(GLOB sources CONFIGURE_DEPENDS contract/*_contract_test.cc contract/win32_*.cc)
add_executable(test_contract ${sources})
target_link_libraries(test_contract PRIVATE tavr_win32 gmock_main)
