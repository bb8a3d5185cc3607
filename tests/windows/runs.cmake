# Runs the Windows program in pens of scripts/prefix, and the same on machine
# folders. Not named test_*: it wants the Windows build and Wine, and scripts/test
# windows starts it.
file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/runs/*.cc)
file(GLOB machine CONFIGURE_DEPENDS machine/*.cc)
list(FILTER machine EXCLUDE REGEX "_test\\.cc$")
add_executable(windows_runs EXCLUDE_FROM_ALL ${sources} ${machine})
target_link_libraries(windows_runs PRIVATE tavr_test_support gmock_main)
target_compile_definitions(windows_runs PRIVATE TAVR_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
                           TAVR_PROGRAM="$<TARGET_FILE:tavrwipe>")
add_dependencies(windows_runs tavrwipe)
