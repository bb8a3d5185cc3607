# The machine that the program runs on, and the program on it.
tavr_layer(tavr_win32 FOLDERS platform/win32 USES tavr_basic)
target_compile_definitions(tavr_win32 PUBLIC UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                           _WIN32_WINNT=0x0A00)
target_link_libraries(tavr_win32 PUBLIC advapi32 comdlg32 gdi32 ole32 oleaut32 shell32 user32
                      uuid wbemuuid wininet)

add_executable(tavrwipe WIN32 app/windows_main.cc)
target_include_directories(tavrwipe PRIVATE ${PROJECT_BINARY_DIR}/generated)
target_link_options(tavrwipe PRIVATE -municode)
target_link_libraries(tavrwipe PRIVATE tavr_engine tavr_win32)
