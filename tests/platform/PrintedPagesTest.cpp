#include "platform/browser/PrintedPages.h"

#include <cerrno>
#include <system_error>

#include <QBuffer>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfWriter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

namespace corvane {
namespace {

QByteArray TwoPages(const QPageLayout& layout) {
  QByteArray pdf;
  QBuffer buffer(&pdf);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setPageLayout(layout);
  QPainter painter(&writer);
  painter.drawText(QPoint(100, 1000), "first");
  writer.newPage();
  painter.drawText(QPoint(100, 1000), "second");
  painter.end();
  return pdf;
}

std::string TextOf(const QPdfDocument& document, int page) {
  return const_cast<QPdfDocument&>(document).getAllText(page).text().simplified().toStdString();
}

TEST(PrintedPages, CarryTitleAndFootAsTextAndKeepTheirOwn) {
  for (const auto paper : {QPageSize::Letter, QPageSize::A4}) {
    QPrinter printer;
    PreparePages(printer);
    printer.setPageSize(QPageSize(paper));
    EXPECT_EQ(printer.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(15, 15, 15, 15));
    const QTemporaryDir folder;
    printer.setOutputFileName(folder.filePath("report.pdf"));
    const QByteArray pages = WithLabels(TwoPages(printer.pageLayout()), printer.pageLayout(),
                                        {"Summary", "First National Bank", "03-07-2024"});
    ASSERT_EQ(PrintPages(pages, printer), "");
    QPdfDocument document;
    document.load(folder.filePath("report.pdf"));
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(document.metaData(QPdfDocument::MetaDataField::Title).toString(), QString("Summary"));
    EXPECT_EQ(TextOf(document, 0), "first First National Bank 03-07-2024 Page 1 of 2");
    EXPECT_EQ(TextOf(document, 1), "second First National Bank 03-07-2024 Page 2 of 2");
  }
  EXPECT_TRUE(WithLabels("no document", {}, {}).isEmpty());
  QPrinter printer;
  printer.setOutputFileName("/no folder/report.pdf");
  EXPECT_EQ(PrintPages("", printer).toStdString(),
            "/no folder/report.pdf\n" + std::generic_category().message(ENOENT));
}

}  // namespace
}  // namespace corvane
