#pragma once

#include <string>

class QLineEdit;

namespace corvane {

// Text between the fields and the core, which holds UTF-8.

/// What a person reads in the field; of an empty date field its mask.
std::string TextOf(const QLineEdit* field);
void SetText(QLineEdit* field, const std::string& text);

}  // namespace corvane
