# What stands beside the program when it is tested on Windows, or under Wine in
# a prefix of scripts/prefix.
set(folder ${CMAKE_CURRENT_LIST_DIR})
add_executable(parent ${folder}/parent.cc ${folder}/parent_window.cc)
target_link_options(parent PRIVATE -municode)
target_link_libraries(parent PRIVATE tavr_win32)

add_executable(planter ${folder}/planter.cc ${folder}/box_answers.cc ${folder}/cache_plants.cc
               ${folder}/parent_window.cc ${folder}/registry_export.cc
               ${folder}/../contract/win32_planting.cc
               ${folder}/../contract/win32_differences.cc ${folder}/../contract/win32_scratch.cc)
target_link_libraries(planter PRIVATE tavr_win32 wininet)
add_dependencies(planter sleeper)
