# The drawing code on pictures in memory, and the windows that only it makes. All
# but the tests with Window in their names run without a display.
set(folder ${CMAKE_CURRENT_LIST_DIR}/drawing)
set_source_files_properties(${folder}/drawing_test.rc PROPERTIES
  COMPILE_OPTIONS "-I${PROJECT_SOURCE_DIR}"
  OBJECT_DEPENDS "${PROJECT_SOURCE_DIR}/resources/search.gif;${PROJECT_SOURCE_DIR}/resources/tavrwipe.ico")
add_executable(contact_sheet ${folder}/contact_sheet.cc ${folder}/picture.cc
               ${folder}/sample_picture.cc ${folder}/drawing_test.rc)
target_link_libraries(contact_sheet PRIVATE tavr_ui_win32)

file(GLOB sources CONFIGURE_DEPENDS ${folder}/*_test.cc)
add_executable(test_drawing ${sources} ${folder}/picture.cc ${folder}/sample_picture.cc
               ${folder}/measured_form.cc ${folder}/system_colors.cc ${folder}/test_window.cc
               ${folder}/../accessible/shown_program.cc ${folder}/../display.cc
               ${folder}/drawing_test.rc)
# It measures the program's speed, and of templates that both have, the test's are
# kept: nearer to the program's with -O1 than with -Og. -O3 compiles a third longer.
target_compile_options(test_drawing PRIVATE -O1)
target_link_libraries(test_drawing PRIVATE tavr_ui_win32 gmock_main comctl32)
