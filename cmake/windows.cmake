# The machine that the program runs on, and the program on it.
tavr_layer(tavr_win32 FOLDERS platform/win32 USES tavr_basic)
target_compile_definitions(tavr_win32 PUBLIC UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                           _WIN32_WINNT=0x0A00)
target_link_libraries(tavr_win32 PUBLIC advapi32 gdi32 ole32 oleaut32 shell32 user32
                      uuid wbemuuid)

tavr_layer(tavr_ui_win32 FOLDERS ui/win32 USES tavr_engine tavr_win32)
target_link_libraries(tavr_ui_win32 PUBLIC gdiplus)

# The same bytes from any folder, and no more of them than are called.
foreach(layer tavr_basic tavr_forms tavr_services tavr_tracks tavr_config tavr_engine tavr_win32
              tavr_ui_win32)
  target_compile_options(${layer} PUBLIC -ffunction-sections -fdata-sections
                         -ffile-prefix-map=${PROJECT_BINARY_DIR}=build
                         -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
endforeach()

configure_file(resources/tavrwipe.manifest ${PROJECT_BINARY_DIR}/generated/tavrwipe.manifest @ONLY)
configure_file(resources/tavrwipe.rc ${PROJECT_BINARY_DIR}/generated/tavrwipe.rc @ONLY)
set_source_files_properties(${PROJECT_BINARY_DIR}/generated/tavrwipe.rc PROPERTIES OBJECT_DEPENDS
  "${PROJECT_SOURCE_DIR}/resources/tavrwipe.ico;${PROJECT_SOURCE_DIR}/resources/search.gif;${PROJECT_BINARY_DIR}/generated/tavrwipe.manifest")

enable_language(RC)
add_executable(tavrwipe WIN32 app/windows_main.cc ${PROJECT_BINARY_DIR}/generated/tavrwipe.rc)
target_include_directories(tavrwipe PRIVATE ${PROJECT_BINARY_DIR}/generated)
target_link_options(tavrwipe PRIVATE -static -municode -s -Wl,--gc-sections
                    -Wl,--no-insert-timestamp -Wl,--build-id=none)
target_link_libraries(tavrwipe PRIVATE tavr_ui_win32)
