#include "reports/HtmlText.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(HtmlText, TypedTextCannotBecomeMarkup) {
  EXPECT_EQ(EscapeHtml("<b>\"A\" & 'B'</b>"), "&lt;b&gt;&quot;A&quot; &amp; &#39;B&#39;&lt;/b&gt;");
  EXPECT_EQ(EscapeHtml("&amp;"), "&amp;amp;");
  EXPECT_EQ(EscapeHtml("M\xC3\xBCller ^x^"), "M\xC3\xBCller ^x^");
  EXPECT_EQ(FieldText("  5.00 < "), "5.00 &lt;");
}

TEST(HtmlText, AmountsOfFields) {
  EXPECT_EQ(DollarText(" 1234567.5 "), "$1,234,567.50");
  EXPECT_EQ(DollarText("0"), "$0.00");
  EXPECT_EQ(DollarText(""), "$0.00");
  EXPECT_EQ(DollarText(2.675), "$2.68");
}

}  // namespace
}  // namespace corvane
