#include "platform/WebView.h"

#include <utility>

#include <QLabel>
#include <QVBoxLayout>

#include "platform/BrowserLoader.h"

namespace corvane {

WebView::WebView(QWidget* parent) : QWidget(parent), notice_(new QLabel(this)) {
  auto* frame = new QVBoxLayout(this);
  frame->setContentsMargins(0, 0, 0, 0);
  notice_->setAlignment(Qt::AlignCenter);
  notice_->setTextFormat(Qt::PlainText);
  notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  notice_->setWordWrap(true);
  frame->addWidget(notice_);
}

WebView::~WebView() = default;

void WebView::ShowFile(const QString& path) {
  path_ = path;
  loadedAgain_ = false;
  Load();
}

void WebView::SetZoom(int percent) {
  zoom_ = percent;
  if (pane_) pane_->SetZoom(percent);
}

void WebView::ShowNotice(const QString& text) {
  DropPane();
  notice_->setText(text);
  notice_->show();
}

void WebView::Load() {
  DropPane();
  notice_->hide();
  waiting_ = std::make_unique<QObject>();
  WithBrowser(waiting_.get(),
              [this](Browser* browser, const QString& reason) { LoadIn(browser, reason); });
}

void WebView::LoadIn(Browser* browser, const QString& reason) {
  if (!browser) return GiveUp(reason + "\n\n");
  pane_ = browser->MakeReportPane();
  layout()->addWidget(&pane_->View());
  setFocusProxy(&pane_->View());
  SetZoom(zoom_);
  pane_->Open(path_, [this](bool success) { Loaded(success); });
}

void WebView::DropPane() {
  waiting_.reset();
  // It may live on until its print has ended.
  if (pane_) pane_->View().hide();
  pane_.reset();
}

void WebView::Loaded(bool success) {
  if (!success && !std::exchange(loadedAgain_, true)) return Load();
  if (!success) return GiveUp("");
  SetZoom(zoom_);
  emit Shown(true);
  // The next report is to find a pane made ahead, too.
  WarmBrowser();
}

void WebView::GiveUp(const QString& reason) {
  ShowNotice(reason + "The report cannot be shown. It stands in " + path_);
  emit Shown(false);
}

PrintResult WebView::Print(const PrintedLabels& labels) {
  const auto printing = pane_;
  if (!printing) return {PrintOutcome::Failed, "No report is shown"};
  return printing->Print(labels, window());
}

}  // namespace corvane
