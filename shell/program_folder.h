#pragma once

#include <filesystem>

// The folder of the running program's executable; the current folder when it cannot be told.
std::filesystem::path ProgramFolder();
