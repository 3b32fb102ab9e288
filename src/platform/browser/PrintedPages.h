#pragma once

#include "platform/Browser.h"

class QPageLayout;
class QPrinter;

namespace corvane {

/// The paper of the locale (Letter in the United States, else A4) with margins of 15 mm.
void PreparePages(QPrinter& printer);

/// A PDF document with its title, and with institution, date and "Page 1 of 2" in the lower margin
/// of every page, as text that can be searched. Empty for what is no such document.
QByteArray WithLabels(const QByteArray& pdf, const QPageLayout& layout,
                      const PrintedLabels& labels);

/// Prints a PDF document: into the file where the printer prints to a PDF file, so that its text
/// stays text, else as pictures of the pages in its range. Tells why it failed, or nothing.
QString PrintPages(const QByteArray& pdf, QPrinter& printer);

}  // namespace corvane
