#pragma once

#include <filesystem>

namespace corvane {

/// The folder that holds the program, its templates, its help file and its settings file.
std::filesystem::path ProgramFolder();

std::filesystem::path HelpFile();      ///< CorvaneWin.chm in the program's folder
std::filesystem::path SettingsFile();  ///< CORVANE.INI in the program's folder

/// The person's documents folder as the desktop names it; empty when there is none.
std::filesystem::path DocumentsFolder();

}  // namespace corvane
