#include "platform/HelpView.h"

#include <utility>

#include <QLabel>
#include <QVBoxLayout>

#include "platform/Browser.h"
#include "platform/BrowserLoader.h"
#include "platform/HelpBook.h"

namespace corvane {

HelpView::HelpView(QWidget* parent) : QWidget(parent), notice_(new QLabel(this)) {
  auto* frame = new QVBoxLayout(this);
  frame->setContentsMargins(0, 0, 0, 0);
  notice_->setObjectName("lblNotice");
  notice_->setAlignment(Qt::AlignCenter);
  notice_->setTextFormat(Qt::PlainText);
  notice_->setWordWrap(true);
  notice_->hide();
  frame->addWidget(notice_);
}

HelpView::~HelpView() = default;

void HelpView::Read(const HelpBook& book) {
  WithBrowser(this, [this, &book](Browser* browser, const QString& reason) {
    ReadIn(browser, reason, book);
  });
}

void HelpView::ReadIn(Browser* browser, const QString& reason, const HelpBook& book) {
  if (!browser) return ShowPage(reason + "\n\nThe help cannot be shown.");
  pane_ = browser->MakeTopicPane({.file = [&book](const QString& name) { return book.File(name); },
                                  .shown = [this](const QString& topic) { emit Shown(topic); },
                                  .lost = [this] { LoadAgain(); }});
  layout()->addWidget(&pane_->View());
  setFocusProxy(&pane_->View());
  if (!topic_.isEmpty()) ShowTopic(topic_, marked_);
}

void HelpView::ShowPage(const QString& insteadOfIt) {
  notice_->setText(insteadOfIt);
  notice_->setVisible(!insteadOfIt.isEmpty());
  if (pane_) pane_->View().setVisible(insteadOfIt.isEmpty());
}

void HelpView::ShowTopic(const QString& topic, const QString& marked) {
  topic_ = topic;
  marked_ = marked;
  if (!pane_) return;
  loadedAgain_ = false;
  ShowPage();
  pane_->Open(topic, marked);
}

void HelpView::LoadAgain() {
  if (!std::exchange(loadedAgain_, true)) return pane_->Reload();
  ShowPage("The topic cannot be shown. Choose it once more.");
}

void HelpView::GoBack() {
  if (pane_) pane_->GoBack();
}

void HelpView::GoForward() {
  if (pane_) pane_->GoForward();
}

bool HelpView::CanGoBack() const {
  return pane_ && pane_->CanGoBack();
}

bool HelpView::CanGoForward() const {
  return pane_ && pane_->CanGoForward();
}

}  // namespace corvane
