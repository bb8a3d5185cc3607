# What a screen reader is told of the windows. It wants a display, lang\ beside
# itself, and the name tavrwipe.exe, by which the languages are found.
file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/accessible/*.cc)
add_executable(test_accessible ${sources} ${CMAKE_CURRENT_LIST_DIR}/display.cc)
target_link_libraries(test_accessible PRIVATE tavr_ui_win32 gmock)
