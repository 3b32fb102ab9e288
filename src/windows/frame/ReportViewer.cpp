#include "windows/frame/ReportViewer.h"

#include <QFileInfo>

#include "account/SessionRecord.h"
#include "platform/MessageBox.h"
#include "platform/ProgramFolder.h"
#include "platform/SaveDialog.h"
#include "platform/WebView.h"
#include "reports/SaveName.h"
#include "windows/frame/Form.h"

namespace corvane {

namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

ReportViewer::ReportViewer(Form& window, WebView& view, const ReportNames& names)
    : window_(window), view_(view), names_(names) {}

void ReportViewer::BuildAndShow(const SessionRecord& session, const ReportContent& content) {
  const std::string output = FileIn(session.AppDataFolder, names_.outputName);
  const ReportBuild build =
      BuildReportFile(FileIn(Utf8Of(ProgramFolder()), names_.templateName), output, content);
  for (const std::string& tag : build.unknownTags) window_.Tell(UnknownTagMessage(tag));
  if (build.error) {
    view_.ShowNotice("No report was built.");
    return window_.Tell(MessageFor(*build.error));
  }
  built_ = true;
  text_ = build.text;
  view_.ShowFile(Text(output));
}

void ReportViewer::Print() {
  if (built_) view_.Print();
}

bool ReportViewer::MayReplace(const std::string& chosen, const std::string& path) const {
  if (!MustAskBeforeReplacing(chosen, path)) return true;
  return AskYesNo(&window_,
                  QFileInfo(Text(path)).fileName() + " already exists.\nDo you want to replace it?",
                  "Save As");
}

void ReportViewer::SaveAs(const SessionRecord& session) {
  if (!built_) return;
  const auto chosen = AskSavePath(&window_, {Text(names_.saveTitle), Text(session.AppDataFolder),
                                             Text(names_.saveName), "HTML Files (*.htm *.html)"});
  if (!chosen) return;
  const std::string path = SavePathFor(chosen->toStdString());
  // A failed write is not reported; whatever stood there before still does.
  if (MayReplace(chosen->toStdString(), path)) WriteWholeFile(path, SavedText(text_));
}

}  // namespace corvane
