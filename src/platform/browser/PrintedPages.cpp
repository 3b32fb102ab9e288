#include "platform/browser/PrintedPages.h"

#include <QBuffer>
#include <QLocale>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfWriter>
#include <QPrinter>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include "support/Paths.h"
#include "support/WholeFile.h"

namespace corvane {

namespace {

constexpr double kMarginMillimetres = 15;
constexpr double kFootPoints = 8;
/// What a text of the report needs to be crisp; a printer's own 1200 would take half a gigabyte.
constexpr double kDotsPerInch = 300;
constexpr double kPointsPerInch = 72;

/// Draws the feet of so many pages, each on a page of its own.
QByteArray FeetOf(int pages, const QPageLayout& layout, const PrintedLabels& labels) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setPageLayout({layout.pageSize(), layout.orientation(), {}});
  QPainter painter(&writer);
  QFont font = painter.font();
  font.setPointSizeF(kFootPoints);
  painter.setFont(font);
  painter.setPen(Qt::darkGray);
  const QRect paper = layout.fullRectPixels(writer.resolution());
  const QMargins margins = layout.marginsPixels(writer.resolution());
  QRect line = paper.marginsRemoved(margins);
  line.setTop(paper.bottom() - margins.bottom());
  line.setBottom(paper.bottom());
  const QString name =
      painter.fontMetrics().elidedText(labels.institution, Qt::ElideRight, line.width() * 2 / 5);
  for (int page = 1; page <= pages; ++page) {
    if (page > 1) writer.newPage();
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, name);
    painter.drawText(line, Qt::AlignCenter, labels.date);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignRight,
                     QString("Page %1 of %2").arg(page).arg(pages));
  }
  painter.end();
  return pdf;
}

void Read(QPDF& document, const QByteArray& pdf) {
  document.processMemoryFile("report", pdf.constData(), static_cast<std::size_t>(pdf.size()));
}

/// Puts one page over another.
void Overlay(QPDF& document, QPDFPageObjectHelper& page, QPDFPageObjectHelper& over) {
  const QPDFObjectHandle form = document.copyForeignObject(over.getFormXObjectForPage());
  QPDFObjectHandle resources = page.getAttribute("/Resources", true);
  resources.mergeResources(QPDFObjectHandle::parse("<< /XObject << >> >>"));
  int suffix = 1;
  const std::string name = resources.getUniqueResourceName("/Foot", suffix);
  resources.getKey("/XObject").replaceKey(name, form);
  const auto box = page.getTrimBox().getArrayAsRectangle();
  const std::string placed = page.placeFormXObject(form, name, box);
  page.addPageContents(document.newStream("q\n"), true);
  page.addPageContents(document.newStream("\nQ\n" + placed), false);
}

void SetTitle(QPDF& document, const QString& title) {
  QPDFObjectHandle trailer = document.getTrailer();
  if (!trailer.hasKey("/Info")) {
    trailer.replaceKey("/Info", document.makeIndirectObject(QPDFObjectHandle::newDictionary()));
  }
  trailer.getKey("/Info").replaceKey("/Title",
                                     QPDFObjectHandle::newUnicodeString(title.toStdString()));
}

QByteArray Written(QPDF& document) {
  QPDFWriter writer(document);
  writer.setOutputMemory();
  writer.write();
  const auto buffer = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char*>(buffer->getBuffer()),
          static_cast<qsizetype>(buffer->getSize())};
}

/// A page on white paper: what a page leaves open would be seen through at the edges of its parts.
QImage PictureOf(QPdfDocument& document, int page) {
  const QSizeF points = document.pagePointSize(page);
  const QImage drawn = document.render(page, (points * (kDotsPerInch / kPointsPerInch)).toSize());
  QImage picture(drawn.size(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter(&picture).drawImage(0, 0, drawn);
  return picture;
}

/// False when the printer refuses.
bool PaintPages(QPdfDocument& document, QPrinter& printer) {
  printer.setFullPage(true);
  QPainter painter(&printer);
  if (!painter.isActive()) return false;
  const int first = std::max(1, printer.fromPage());
  const int last = printer.toPage() > 0 ? printer.toPage() : document.pageCount();
  for (int page = first; page <= std::min(last, document.pageCount()); ++page) {
    if (page > first && !printer.newPage()) return false;
    painter.drawImage(QRectF(painter.viewport()), PictureOf(document, page - 1));
  }
  return painter.end();
}

}  // namespace

void PreparePages(QPrinter& printer) {
  const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  printer.setPageSize(QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4));
  printer.setPageMargins(
      {kMarginMillimetres, kMarginMillimetres, kMarginMillimetres, kMarginMillimetres},
      QPageLayout::Millimeter);
}

QByteArray WithLabels(const QByteArray& pdf, const QPageLayout& layout,
                      const PrintedLabels& labels) try {
  QPDF document;
  Read(document, pdf);
  auto pages = QPDFPageDocumentHelper(document).getAllPages();
  const QByteArray drawn = FeetOf(static_cast<int>(pages.size()), layout, labels);
  QPDF feet;
  Read(feet, drawn);
  auto over = QPDFPageDocumentHelper(feet).getAllPages();
  for (std::size_t k = 0; k < pages.size(); ++k) Overlay(document, pages[k], over.at(k));
  SetTitle(document, labels.title);
  return Written(document);
} catch (const std::exception&) {
  return {};
}

QString PrintPages(const QByteArray& pdf, QPrinter& printer) {
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    const auto file = PathOf(printer.outputFileName().toStdString());
    const auto error = WriteWholeFile(file, pdf.toStdString());
    return error ? QString::fromStdString(PathText(error->path) + "\n" + error->reason) : QString();
  }
  QByteArray data = pdf;
  QBuffer buffer(&data);
  QPdfDocument document;
  buffer.open(QIODevice::ReadOnly);
  document.load(&buffer);
  if (document.status() != QPdfDocument::Status::Ready) return "Its pages could not be drawn";
  return PaintPages(document, printer) ? QString() : "The printer takes no pages";
}

}  // namespace corvane
