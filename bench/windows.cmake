# Plain Windows programs that the real one is measured beside, under Wine in a
# prefix of scripts/prefix. scripts/bench windows runs them.
foreach(tool walk empty measure)
  add_executable(bench_${tool} bench/windows/${tool}.cc)
  target_compile_definitions(bench_${tool} PRIVATE UNICODE _UNICODE _WIN32_WINNT=0x0A00)
  target_link_options(bench_${tool} PRIVATE -municode)
endforeach()
target_link_options(bench_empty PRIVATE -mwindows)
target_link_libraries(bench_measure PRIVATE psapi)
