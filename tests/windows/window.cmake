# Drives the windows of tavrwipe.exe, which it looks for beside itself with lang\:
# scripts/prefix --run PEN 'C:\...\test_windows.exe', on a display with a window
# manager.
file(GLOB sources CONFIGURE_DEPENDS windows/window/*.cc)
add_executable(test_windows ${sources} ${CMAKE_CURRENT_LIST_DIR}/accessible/shown_program.cc
               ${CMAKE_CURRENT_LIST_DIR}/display.cc)
target_link_libraries(test_windows PRIVATE tavr_ui_win32 gmock_main comctl32)
target_precompile_headers(test_windows REUSE_FROM tavr_test_headers)
add_dependencies(test_windows tavrwipe form_alone recorder)
