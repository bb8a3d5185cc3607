// Overwrites one file of a machine folder as the program does it, for comparing
// with overwrite_plain.
#include <cstdio>

#include "forms/form1.h"
#include "platform/folder/machine_folder.h"
#include "services/deletion.h"
#include "services/file_statements.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: overwrite_program MACHINE WINDOWS-PATH\n", stderr);
    return 2;
  }
  try {
    tavr::folder::MachineFolder folder(argv[1]);
    tavr::Form1 form(folder.machine());
    tavr::FileNumbers numbers(folder.machine());
    tavr::Deletion(folder.machine(), form, numbers).fOverwriteFile(argv[2]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "overwrite_program: %s\n", error.what());
    return 2;
  }
}
