# What scripts/screenshots opens the forms with.
set(folder ${CMAKE_CURRENT_LIST_DIR})
add_executable(show EXCLUDE_FROM_ALL ${folder}/screenshots/show.cc
               ${folder}/screenshots/photographs.cc ${folder}/window/driven_program.cc
               ${folder}/window/hands.cc ${folder}/window/task_bar.cc)
target_link_libraries(show PRIVATE tavr_win32)

add_executable(form_alone WIN32 EXCLUDE_FROM_ALL ${folder}/screenshots/form_alone.cc
               ${PROJECT_BINARY_DIR}/generated/tavrwipe.rc)
target_link_options(form_alone PRIVATE -municode)
target_link_libraries(form_alone PRIVATE tavr_ui_win32)
