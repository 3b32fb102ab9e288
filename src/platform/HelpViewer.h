#pragma once

#include <filesystem>

class QWidget;

namespace corvane {

/// Opens the help file at a topic's context number in the desktop's viewer, which is handed the
/// file only: not every viewer takes a context. Says so when the file is missing.
void ShowHelp(QWidget* parent, const std::filesystem::path& file, int context);

}  // namespace corvane
