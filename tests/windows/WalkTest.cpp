#include "TemporaryFolder.h"
#include "platform/OpenDialog.h"
#include "platform/SaveDialog.h"
#include "windows/WindowTest.h"
#include "windows/start/MainMenu.h"

namespace corvane {
namespace {

/// A line of a walk, and the lines indented below it.
struct Step {
  int line = 0;
  QString text;
  std::vector<Step> block;
};

void AddStep(std::vector<Step>& steps, qsizetype depth, Step step) {
  if (depth == 0 || steps.empty()) return steps.push_back(std::move(step));
  AddStep(steps.back().block, depth - 1, std::move(step));
}

std::vector<Step> ReadWalk(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  std::vector<Step> steps;
  int number = 0;
  for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
    const QString text = line.trimmed();
    ++number;
    if (text.isEmpty() || text.startsWith('#')) continue;
    AddStep(steps, line.indexOf(text) / 2, {number, text, {}});
  }
  return steps;
}

bool IsRow(const Step& step) {
  return step.text.startsWith('|');
}

/// The steps of a block with the cells of a row in place of the names of their columns. A step
/// that loses a word to an empty cell is left out.
std::vector<Step> Filled(const std::vector<Step>& block, const QStringList& names,
                         const QStringList& cells) {
  std::vector<Step> filled;
  for (Step step : block) {
    const auto words = QProcess::splitCommand(step.text).size();
    for (qsizetype i = 0; i < names.size(); ++i) step.text.replace('{' + names[i] + '}', cells[i]);
    step.block = Filled(step.block, names, cells);
    if (QProcess::splitCommand(step.text).size() >= words) filled.push_back(step);
  }
  return filled;
}

/// What the cells below a heading of a report's tables show.
QStringList ReportColumn(const QString& report, const QString& heading) {
  static const QRegularExpression part(
      "<(table|tr|t[hd])\\b[^>]*>(.*?)(?=<table|</?t[rhd]\\b|</table)",
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression markup("<[^>]*>|&nbsp;");
  QStringList headings, column;
  qsizetype cell = 0;
  for (const auto& match : part.globalMatch(report)) {
    const QString tag = match.captured(1).toLower();
    const QString text = match.captured(2).remove(markup).trimmed();
    if (tag == "table") headings.clear();
    if (tag == "tr") cell = 0;
    if (tag == "th" && match.captured().contains("\"col\"")) headings += text;
    if (tag == "td" && headings.value(cell++) == heading) column += text;
  }
  return column;
}

/// What a person reads in a control, or as the title of a window; of a picture what is read aloud.
QString ShownBy(const QWidget* control) {
  for (const char* property : {"displayText", "currentText", "text", "title"}) {
    if (const QVariant text = control->property(property); text.isValid()) return text.toString();
  }
  return control->isWindow() ? control->windowTitle() : control->accessibleName();
}

Form* VisibleForm(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<Form*>(window);
    if (form && form->isVisible() && form->objectName() == name) return form;
  }
  return nullptr;
}

bool IsOpenMain(const QWidget* window) {
  const auto* form = qobject_cast<const Form*>(window);
  return form && form->isVisible() && form->WindowRole() == Form::Role::Main;
}

/// "20,50" is a place in a control, in percent of its size; the middle where none is told.
QPoint PlaceOf(const QString& text) {
  if (text.isEmpty()) return {50, 50};
  return {text.section(',', 0, 0).toInt(), text.section(',', 1).toInt()};
}

/// The keys of the keyboard that a character or a chord such as Alt+C takes.
int KeysOf(const QChar& letter) {
  return letter.isUpper() || QString("~!@#$%^&*()_+{}|:\"<>?").contains(letter) ? 2 : 1;
}
int KeysOf(const QKeyCombination& chord) {
  return 1 + static_cast<int>(qPopulationCount(chord.keyboardModifiers().toInt()));
}

QString Unescaped(QString text) {
  return text.replace("\\n", "\n").replace("\\t", "\t");
}

/// A person's way through the windows, from the main menu on, as a file in walks tells it line by
/// line; docs/testing.md lists the words.
class Walk : public WindowTest {
 public:
  explicit Walk(std::string file) : file_(std::move(file)) {}

 protected:
  void TestBody() override {
    const std::vector<Step> steps = ReadWalk(QString::fromStdString(file_));
    ASSERT_FALSE(steps.empty());
    if (steps.front().text != "in frmSplash") windows.Show<MainMenu>();
    if (steps.front().text == "in frmSplash") windows.routes().ShowDisclaimer();
    Run(steps);
    EXPECT_TRUE(HasFailure() || expected_ > 0) << file_ << " expects nothing";
  }

 private:
  using Words = QStringList;
  using Word = std::function<void(const Words&)>;

  /// A word that does or expects the same of each argument, which is a name or "name=value".
  static Word Each(std::function<void(const QString& name, const QString& value)> handle) {
    return [handle](const Words& arguments) {
      EXPECT_FALSE(arguments.empty()) << "says not of what";
      for (const auto& word : arguments) handle(word.section('=', 0, 0), word.section('=', 1));
    };
  }

  Word State(const char* property, bool value) {
    return Each([this, property, value](const QString& name, const QString&) {
      const auto* control = Get<QWidget>(name);
      EXPECT_EQ(control ? control->property(property) : QVariant(), value) << name.toStdString();
    });
  }

  const std::map<QString, Word> acts_ = {
      {"in", Each([this](auto& name, auto&) { In(name); })},
      {"click", Each([this](auto& name, auto& place) { Click(name, PlaceOf(place)); })},
      {"double-click",
       Each([this](auto& name, auto& place) { DoubleClick(name, PlaceOf(place)); })},
      {"choose", Each([this](auto& name, auto&) { Choose(name); })},
      {"type", Each([this](auto& name, auto& text) { Type(name, text); })},
      {"keys", Each([this](auto& text, auto&) {
         for (const QChar& letter : text) pressed_ += KeysOf(letter);
         Keys(text);
       })},
      {"key", Each([this](auto& name, auto&) { Press(name); })},
      {"copy",
       Each([](auto& text, auto&) { QGuiApplication::clipboard()->setText(Unescaped(text)); })},
      {"opened", [this](auto& words) { Opened(Unescaped(words[0])); }},
      {"opens",
       Each([this](auto& name, auto&) { SetOpenAnswer([path = PathOf(name)] { return path; }); })},
      {"saves", Each([this](auto& name, auto&) {
         SetSaveAnswer([path = PathOf(name)](const SaveQuestion&) { return path; });
       })},
      {"menu", Each([this](auto& item, auto&) { Menu(item); })},
      {"entry", Each([this](auto& number, auto&) { ClickEntry(number.toInt()); })},
      {"close", Each([this](auto& name, auto&) {
         EXPECT_EQ(Front()->objectName(), name) << "is not in front";
         CloseByFrame();
       })},
  };

  const std::map<QString, Word> expectations_ = {
      {"box", [this](const Words& words) { Announce(words, MessageIcon::Exclamation); }},
      {"notice", [this](const Words& words) { Announce(words, MessageIcon::None); }},
      {"shows", Each([this](auto& name, auto& text) { Shows(name, text); })},
      {"hint",
       [this](const Words& words) { EXPECT_EQ(Caption("lblHint"), words.value(0).toStdString()); }},
      {"entries", [this](const Words& words) { Entries(words); }},
      {"focus", Each([this](auto& name, auto&) { EXPECT_EQ(Focus(), name.toStdString()); })},
      {"shown", State("visible", true)},
      {"hidden", State("visible", false)},
      {"enabled", State("enabled", true)},
      {"disabled", State("enabled", false)},
      {"chosen", State("checked", true)},
      {"unchosen", State("checked", false)},
      {"up", State("down", false)},
      {"report", [this](const Words& words) { Report(words); }},
      {"rows", [this](const Words& words) { Rows(words.value(0)); }},
      {"file", [this](const Words& words) { Holds(words.value(0), Unescaped(words.value(1))); }},
      {"closed", Each([](auto& name, auto&) { EXPECT_EQ(VisibleForm(name), nullptr); })},
      {"ended", [this](const Words&) { Ended(); }},
      {"pressed", Each([this](auto& keys, auto&) {
         EXPECT_EQ(pressed_, keys.toInt());
         EXPECT_FALSE(usesMouse_) << "not by the keyboard alone";
       })},
  };

  void Run(const std::vector<Step>& steps) {
    for (const Step& step : steps) {
      if (HasFailure()) return;
      const ::testing::ScopedTrace trace(file_.c_str(), step.line, step.text.toStdString());
      const Words words = QProcess::splitCommand(step.text);
      if (words.front() == "for") {
        RunRows(words.mid(1), step.block);
      } else if (step.block.empty()) {
        Do(words);
      } else {
        DoAbove(words, step.block);
      }
    }
  }

  void RunRows(const Words& names, const std::vector<Step>& block) {
    std::vector<Step> steps = block;
    std::erase_if(steps, IsRow);
    for (const Step& row : block) {
      if (!IsRow(row)) continue;
      const ::testing::ScopedTrace trace(file_.c_str(), row.line, row.text.toStdString());
      Words cells;
      for (const QString& cell : row.text.split('|')) cells += cell.trimmed();
      ASSERT_EQ(cells.size(), names.size() + 2) << "cells, with what is outside of the bars";
      Run(Filled(steps, names, cells.mid(1)));
    }
  }

  void Do(const Words& words) {
    const bool acts = acts_.contains(words.front());
    const auto& known = acts ? acts_ : expectations_;
    const auto word = known.find(words.front());
    ASSERT_TRUE(word != known.end()) << "unknown word";
    const bool needsWindow = word->first != "in" && word->first != "ended";
    ASSERT_TRUE(!needsWindow || Front()) << "in no window";
    word->second(words.mid(1));
    EXPECT_TRUE(!acts || boxes.empty()) << "a box did not come";
    if (!acts) ++expected_;
    usesMouse_ |= acts && !QStringList{"in", "key", "keys", "copy"}.contains(words.front());
  }

  /// An act that opens windows above: each part of the block that begins with "in" is done in one
  /// of them and closes it. Then the window that was in front is so again.
  void DoAbove(const Words& act, const std::vector<Step>& block) {
    const QPointer<Form> before = Front();
    const QWidget* below = QApplication::activeModalWidget();
    auto next = block.begin();
    QTimer opened;
    opened.callOnTimeout([&] {
      QPointer<Form> above = qobject_cast<Form*>(QApplication::activeModalWidget());
      if (!above || above == below) return;
      opened.stop();
      const auto begin = std::exchange(
          next, std::find_if(next + 1, block.end(),
                             [](const Step& step) { return step.text.startsWith("in "); }));
      // What was announced before the act comes when the window has closed.
      const auto announced = std::exchange(boxes, {});
      Run({begin, next});
      boxes.insert(boxes.end(), announced.begin(), announced.end());
      if (next != block.end() && !HasFailure()) opened.start();
      if (!above || !above->isVisible()) return;
      ADD_FAILURE() << above->objectName().toStdString() << " stays open";
      windows.Close(*above);
    });
    opened.start();
    Do(act);
    EXPECT_TRUE(next == block.end() || HasFailure()) << "opens no window for the lines below";
    if (before && before->isVisible()) StandIn(*before);
  }

  /// Waits for a window and stands in it; a main window comes in the place of any other.
  void In(const QString& name) {
    ASSERT_TRUE(QTest::qWaitFor([&name] { return VisibleForm(name); })) << "is not shown";
    StandIn(*VisibleForm(name));
    if (!IsOpenMain(Front())) return;
    EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), IsOpenMain), 1)
        << "another main window is open too";
  }

  void Press(const QString& name) {
    const QKeySequence keys(name);
    ASSERT_TRUE(!keys.isEmpty() && keys[0].key() != Qt::Key_unknown) << "unknown key";
    pressed_ += KeysOf(keys[0]);
    Key(keys[0].key(), keys[0].keyboardModifiers());
  }

  /// The text of a box, then its title and answer where they are not the usual ones.
  void Announce(const Words& words, MessageIcon icon) {
    ExpectedBox box{.text = Unescaped(words.value(0)).toStdString(), .icon = icon};
    if (words.size() > 1) box.title = words[1].toStdString();
    if (words.size() > 2) box.answer = words[2] == "Yes" ? QMessageBox::Yes : QMessageBox::No;
    Expect(box);
  }

  /// The next open dialog is answered with a file of this text.
  void Opened(const QString& text) {
    QFile file(folder_.Path() / "opened.csv");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0);
    SetOpenAnswer([path = file.fileName()] { return path; });
  }

  QString PathOf(const QString& name) const {
    return QString::fromStdString((folder_.Path() / name.toStdString()).string());
  }

  /// A file that was saved ends with this text.
  void Holds(const QString& name, const QString& text) {
    QFile file(PathOf(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no such file";
    const QString content = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(content.endsWith(text)) << content.toStdString();
  }

  /// The table of results, which fills while it is looked at: account and verdict of its rows.
  void Rows(const QString& expected) {
    const auto* model = Get<QTableView>("tblResults")->model();
    const auto shown = [model] {
      QStringList rows;
      for (int row = 0; row < model->rowCount(); ++row) {
        const auto cell = [&](int column) { return model->index(row, column).data().toString(); };
        rows << cell(1) + ' ' + cell(2);
      }
      return rows.join("; ");
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == expected; })) << shown().toStdString();
  }

  void Shows(const QString& name, const QString& text) {
    const auto* control = name == Front()->objectName() ? Front() : Get<QWidget>(name);
    if (!control) return;
    // A title follows the page that the browser shows, which is quick in an event loop only.
    QSignalSpy changed(Front(), &QWidget::windowTitleChanged);
    while (control == Front() && ShownBy(control) != text && changed.wait()) {
    }
    EXPECT_EQ(ShownBy(control).toStdString(), text.toStdString()) << name.toStdString();
  }

  void Report(const Words& words) {
    QFile file(session.dataFolder / words.value(0).toStdString());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no such report";
    const QString report = QString::fromUtf8(file.readAll());
    Each([&report](const QString& heading, const QString& cells) {
      const QStringList column = ReportColumn(report, heading);
      EXPECT_FALSE(column.empty()) << "no such column";
      EXPECT_EQ(column.join("; ").toStdString(), cells.toStdString());
    })(words.mid(1));
  }

  void ClickEntry(int number) {
    auto* list = Get<QTreeWidget>("lstEntries");
    const QRect place = list->visualItemRect(list->topLevelItem(number - 1));
    ASSERT_TRUE(list->isVisible() && place.isValid()) << "no such entry";
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
    QCoreApplication::processEvents();
  }

  /// The list of the entries so far, each in one line.
  void Entries(const Words& expected) {
    Words shown;
    const auto* list = Get<QTreeWidget>("lstEntries");
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
      const auto* item = list->topLevelItem(i);
      shown << QString(item->text(0) + '\n' + item->text(1)).replace('\n', ' ');
    }
    EXPECT_EQ(shown.join("; ").toStdString(), expected.join("; ").toStdString());
  }

  /// In the orderly way.
  void Ended() {
    EXPECT_TRUE(windows.HasEnded());
    EXPECT_EQ(session.header.institution, "");
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
    }
  }

  const std::string file_;
  const TemporaryFolder folder_;
  int expected_ = 0;
  int pressed_ = 0;  ///< keys so far
  bool usesMouse_ = false;
};

const bool kRegistered = [] {
  for (const QFileInfo& file : QDir(CORVANE_WALKS).entryInfoList({"*.walk"})) {
    const std::string path = file.filePath().toStdString();
    ::testing::RegisterTest("Walk", file.baseName().toStdString().c_str(), nullptr, nullptr,
                            path.c_str(), 1, [path]() -> WindowTest* { return new Walk(path); });
  }
  return true;
}();

}  // namespace
}  // namespace corvane
