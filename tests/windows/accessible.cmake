# What a screen reader is told of the windows. It wants a display.
file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/accessible/*.cc)
add_executable(test_accessible EXCLUDE_FROM_ALL ${sources})
target_link_libraries(test_accessible PRIVATE tavr_ui_win32 gmock)
