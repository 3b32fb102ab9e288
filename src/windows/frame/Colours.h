#pragma once

class QPalette;

namespace corvane {

/// The palette with disabled text that can be read: disabled fields show figures, and disabled
/// options what is chosen. It is fainter, not all but gone. The window's own colour behind it tells
/// such a field from one that takes an entry, in a dark palette too.
QPalette ReadableWhenDisabled(QPalette palette);

}  // namespace corvane
