#include <set>

#include <QtTest>
#include <QtWidgets>

#include "platform/BrowserLoader.h"
#include "platform/HelpView.h"
#include "platform/OpenDialog.h"
#include "platform/Pictures.h"
#include "platform/WebView.h"
#include "support/Clock.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

/// Until a window that was just shown, or its page, has come to rest.
constexpr int kRestMilliseconds = 250;
constexpr int kPageMilliseconds = 2500;

/// What is typed, "&c" for Alt+C, and the picture that is taken of the window in front then.
struct Step {
  QString keys;
  const char* picture = nullptr;
};
using Steps = std::vector<Step>;

/// The keys of the topics "A first disclosure" and "A first statement".
const Steps kHelpTopics = {
    {"", "disclaimer"},
    {"&a", "about"},
    {"\r"},
    {"&c", "main-menu"},
    {"&d"},
    {"First Example Bank\tOne-year certificate\tA. Holder", "disclosure-setup"},
    {"&c"},
    {"5.39\t1000\t5.25\t365\t", "disclosure-entry"},
    {"&c", "disclosure-results"},
    {"&a"},
    {"&x"},
    {"&c"},
    {"3\t5.25\t2500\t5.5\t15000\t5.75\t", "tier-table"},
    {"&m"},
    {"&p"},
    {"First Example Bank\tInterest checking\tA. Holder\t1234&e", "statement-setup"},
    {"&c"},
    {"04012025\t05012025\t"},
    {" ", "calendar"},
    {"\x1b"},
    {"\x1b"},
    {"\t0\t0\t6.58\t6.3875\t\t \t\t0\t1000\t\t5.25", "statement-period"},
    {"&c", "statement-results"},
    {"&b"},
    {"[cmdComputeLADB] "},
    {QString("1500\t").repeated(15) + QString("500\t").repeated(15), "daily-balances"},
    {"&c"},
    {"&c"},
    {"&s", "interest-report"},
    {"&b"},
    {"[cmdExit] "},
    {"[mnuCheckFile]", "check-file"},
};

/// The one picture of a message: any other has come unasked.
constexpr const char* kMessage = "message";

constexpr const char* kMostMoney = "9999999999999.99";

/// A disclosure's setup from the main menu on, with the options that are named.
QString Setup(const QString& options) {
  return "[cmdAcctAdv] " + options + "[txtName]First Example Bank\tOne-year certificate\tA. Holder";
}

/// The table of so many tiers, with the longest numbers.
QString TierTable(int tiers) {
  QString keys = QString("[cboTotalTiers]%1").arg(tiers);
  for (int tier = 1; tier <= tiers; ++tier) {
    keys += QString("[txtInt(%1)]10.1234").arg(tier);
    if (tier < tiers) keys += QString("[txt_bne(%1)]%1").arg(tier) + "00000000000.99";
  }
  return keys + "\t";
}

/// A disclosure of one method: its table with all tiers, then three of them up to the results. The
/// balance of an entry, by its number.
Steps Tiers(const QString& option, const QStringList& balances, const char* table,
            const char* entry, const char* last, const char* results) {
  Steps steps = {{Setup("[" + option + "] ")},
                 {"[cmdNext] "},
                 {TierTable(10), table},
                 {TierTable(3)},
                 {"[cmdCalculate] "}};
  for (const QString& balance : balances) {
    const bool isFirst = balance == balances.front();
    const char* picture = isFirst ? entry : balance == balances.back() ? last : nullptr;
    // The term of the first entry is that of all.
    const QString term = isFirst ? "[txtTerm]365" : "";
    const QString typed = balance.isEmpty() ? "" : "[txtBal]" + balance;
    steps.push_back({term + typed + "[txtDiscAPY]10.65\t", picture});
    steps.push_back({"[cmdNext] "});
  }
  steps.push_back({"", results});
  steps.push_back({"[cmdExit] "});
  return steps;
}

/// The days of a statement's period; the results where they are asked for.
Steps Days(int count, const char* days, const char* last) {
  return {{"[cmdStatement] [txtName]First Example Bank\tInterest checking with tiers[optStepRate] "
           "[cmdNext] "},
          {"[txtDateStart]04012025[txtMinADB]0[txtMinDBal]0[txtDClApy]6.58[txtLedgerdays]" +
           QString::number(count) + "\t[cmdComputeLADB] "},
          {"999999999999.99\t10.1234[mnuCopyToEnd]", days},
          {count > 33 ? "&n" : ""},
          {count > 66 ? "&n" : "", last}};
}

Steps Results(const char* period, const char* results, const char* detail) {
  return {{"&c", period}, {"&c", results}, {"&s", detail}, {"&b"}};
}

/// Every window, in every state that lays it out in another way.
Steps EveryWindow() {
  Steps steps = {
      {"", "disclaimer"},
      {"&a", "about"},
      {"\r"},
      {"&c", "main-menu"},
      {"[mnuCheckFile]", "file"},
      {"&r", "file-report"},
      {"&b"},
      {"&m"},
      {"&e", "help"},
      {"[]"},
      {Setup("[optICNone] "), "setup-no-compounding"},
      {"[optICDays] [optRegNoDisc] [optRINotReq] ", "setup-days"},
      {"[cmdNext] ", "entry-regular-empty"},
      {"[txtDiscAPY]5.39[txtBal]1000[txtIntRateA][cmdCalculateResult] ", kMessage},
      {"\r", "hint"},
      {QString("[txtBal]%1[txtIntRateA]5.25[txtTerm]0\t").arg(kMostMoney)},
      {"[tStartDate]10/1/2025[tEndDate]10/1/2026\t", "entry-regular"},
      {"[ImgCalendar(0)] ", "calendar"},
      {"\x1b"},
      {"[txtTerm]365\t[cmdCalculateResult] ", "results-regular"},
      {"[cmdExit] "},
      {Setup("[optICMonths] [txtDailyCompounding]1[optStepRate] [optRIMonths] "), "setup-months"},
      {"[cmdNext] "},
      {QString("[txtTierPerNum]2[txtBeginMonth]11[txtBeginYear]2023[txtDiscAPY]5[txtBal]%1["
               "txtIntRateA]5[txtTerm]6[txtWdrwlPeriods]6[txtBtwnReqIntWdrwl]1\t")
           .arg(kMostMoney),
       "entry-stepped-months"},
      {"[cmdNext] "},
      {"[cmdBack] ", "entry-stepped-months-2"},
      {"[cmdExit] "},
      {Setup("[optICDays] [optStepRate] [OptRIDays] ")},
      {"[cmdNext] "},
      {"[txtTierPerNum]2[txtTerm]0[tStartDate]10/1/2023[tEndDate]3/2/2024\t", "entry-stepped-days"},
      {"[cmdExit] "},
      {"[cmdStatement] ", "statement-setup"},
      {"[optICNone] [optFormulaYes] [txtDCPeriod]30", "statement-setup-none"},
      {"[cmdNext] ", "statement-period-empty"},
      {"[ImgCalendar] "},
      {"\r", "calendar-start"},
      {"\x1b"},
      {"", "calendar-end"},
      {"\x1b"},
      {QString(
           "[txtDateStart]04012025[txtDateEnd]05012025[txtMinADB]%1[txtMinDBal]%1[txtDClApy]6.58"
           "[txtIntRate]6.3875[optLColl_No] [txtLedgerdays]0\t")
           .arg(kMostMoney),
       "statement-period"},
      {"[cmdExit] "},
  };
  for (const Steps& more :
       {Tiers("optTierA", {"1000", "150000000000", "5"}, "tiers-a", "entry-tier-a",
              "entry-tier-a-last", "results-tier-a"),
        Tiers("optTierB", {""}, "tiers-b", "entry-tier-b", nullptr, "entry-tier-b-2"),
        Days(1, "days-1", nullptr), Steps{{"&c", "statement-1"}, {"&m"}},
        Days(31, "days-31", nullptr),
        Results("statement-31", "statement-results", "interest-report"), Steps{{"&m"}},
        Days(96, "days-96", "days-96-last")}) {
    steps.insert(steps.end(), more.begin(), more.end());
  }
  return steps;
}

/// The window in front. Without a window manager nobody brings back the one behind a window that
/// has closed.
QWidget* Front() {
  if (QWidget* window = QApplication::activeModalWidget()) return window;
  if (QWidget* window = QApplication::activeWindow()) return window;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<Form*>(window) && window->isVisible()) {
      window->activateWindow();
      return window;
    }
  }
  return nullptr;
}

/// The walk has lost its way: the pictures would show something else.
[[noreturn]] void LoseWay(const QString& reason) {
  qFatal("%s", qPrintable(reason));
}

/// Gives the focus to a control, to type over what it holds, and triggers a menu item; without a
/// name the window closes.
void FocusOn(QWidget& window, const QString& name) {
  if (name.isEmpty()) {
    window.close();
  } else if (auto* item = window.findChild<QAction*>(name)) {
    item->trigger();
  } else if (auto* control = window.findChild<QWidget*>(name)) {
    // Its keys would go to the field that has the focus.
    if (!control->isEnabled()) LoseWay(name + " takes no keys");
    control->setFocus();
    if (auto* field = qobject_cast<QLineEdit*>(control)) field->selectAll();
  } else {
    LoseWay("no control " + name + " in " + window.objectName());
  }
}

/// Types keys; "&c" is Alt+C, "[txtBal]" gives the focus to a control, "[mnuUndo]" triggers a menu
/// item, and "[]" closes the window.
void Type(const QString& keys) {
  for (qsizetype k = 0; k < keys.size(); ++k) {
    QWidget* window = Front();
    if (keys[k] == '&') {
      QTest::keyClick(window, keys[++k].toUpper().toLatin1(), Qt::AltModifier);
    } else if (keys[k] == '[') {
      const qsizetype end = keys.indexOf(']', k);
      const QString name = keys.mid(k + 1, end - k - 1);
      k = end;
      FocusOn(*window, name);
    } else {
      QTest::keyClick(window->focusWidget(), keys[k].toLatin1());
    }
  }
}

/// The image in few enough colours for a small file: every colour is moved a little where more than
/// a palette holds are in use.
QImage WithPalette(const QImage& picture) {
  for (const int step : {1, 3, 5, 15, 17}) {
    QImage image = picture.convertToFormat(QImage::Format_RGB32);
    std::set<QRgb> colours;
    const auto moved = [step](int part) { return (part + step / 2) / step * step; };
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QRgb colour = image.pixel(x, y);
        image.setPixel(x, y,
                       qRgb(moved(qRed(colour)), moved(qGreen(colour)), moved(qBlue(colour))));
        colours.insert(image.pixel(x, y));
      }
    }
    if (colours.size() <= 256) return image.convertToFormat(QImage::Format_Indexed8);
  }
  return picture;
}

/// The picture of a help topic: the window alone, as a small file.
bool TakeWindow(QWidget* window, const QString& path) {
  // Where it was built is nobody's concern.
  if (auto* config = window->findChild<QPlainTextEdit*>("TextConfig")) {
    const QString folder = QApplication::applicationDirPath();
    config->setPlainText(config->toPlainText().replace(folder, "/opt/corvane"));
  }
  constexpr int kSmallestFile = 0;
  return WithPalette(window->grab().toImage()).save(path, "PNG", kSmallestFile);
}

/// Draws a window with its title bar, as a desktop does.
void DrawFramed(QPainter& painter, QWidget& window) {
  const int bar =
      qMin(window.style()->pixelMetric(QStyle::PM_TitleBarHeight), window.geometry().top());
  const QRect frame = window.geometry().adjusted(-2, -bar, 2, 2);
  painter.fillRect(frame, QColor(0x40, 0x50, 0x60));
  painter.setPen(Qt::white);
  painter.drawText(QRect(frame.topLeft(), QSize(frame.width(), bar)), Qt::AlignCenter,
                   window.windowTitle());
  painter.drawPixmap(window.geometry().topLeft(), window.grab());
}

/// The picture of the whole screen, so that what leaves the screen is missed.
bool TakeScreen(QWidget* window, const QString& path) {
  QPixmap picture(window->screen()->size() * window->devicePixelRatio());
  picture.setDevicePixelRatio(window->devicePixelRatio());
  picture.fill(Qt::darkCyan);
  QPainter painter(&picture);
  for (QWidget* shown : QApplication::topLevelWidgets()) {
    if (shown->isVisible() && shown != window) DrawFramed(painter, *shown);
  }
  DrawFramed(painter, *window);
  return picture.save(path);
}

/// Goes through the walk, one step each time that the windows have come to rest. A step may open a
/// window that returns only after later steps have closed it.
class Walk : public QObject {
 public:
  using Taker = bool (*)(QWidget* window, const QString& path);
  Walk(Steps steps, Taker take, const QString& folder)
      : steps_(std::move(steps)), take_(take), folder_(folder) {
    Rest();
  }

 private:
  void Rest() {
    const QWidget* window = Front();
    const bool isPage = window && step_->picture &&
                        (window->findChild<WebView*>() || window->findChild<HelpView*>());
    QTimer::singleShot(isPage ? kPageMilliseconds : kRestMilliseconds, this,
                       [this] { Continue(); });
  }

  void Continue() {
    if (!typed_) {
      typed_ = true;
      QTimer::singleShot(0, this, [this] { Rest(); });
      return Type(step_->keys);
    }
    const auto* box = qobject_cast<QMessageBox*>(Front());
    if (box && step_->picture != QByteArrayView(kMessage))
      LoseWay(step_->keys + " is answered by: " + box->text());
    if (step_->picture && !take_(Front(), PathOfPicture())) {
      LoseWay(PathOfPicture() + " was not written");
    }
    typed_ = false;
    if (++step_ == steps_.end()) return QCoreApplication::exit();
    Rest();
  }

  QString PathOfPicture() const { return QDir(folder_).filePath(QString(step_->picture) + ".png"); }

  const Steps steps_;
  const Taker take_;
  const QString folder_;
  Steps::const_iterator step_ = steps_.begin();
  bool typed_ = false;
};

QPalette DarkPalette() {
  QPalette palette(QColor(0x31, 0x31, 0x31));
  palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
  return palette;
}

/// A screen as small as 1024x768, without a display; one of so many times the dots where everything
/// is drawn larger.
bool MakeScreen(const QDir& folder) {
  const int scale = qMax(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR"));
  const QByteArray size =
      QString(R"("width": %1, "height": %2)").arg(1024 * scale).arg(768 * scale).toUtf8();
  QFile file(folder.filePath("screen.json"));
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
  return file.open(QIODevice::WriteOnly) &&
         file.write(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": true,
                       "screens": [{"name": "small", "x": 0, "y": 0, )" +
                    size + R"(,
                                    "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})") > 0;
}

}  // namespace

}  // namespace corvane

/// Takes pictures of the windows: goes through them with real keys, without a display, and writes
/// the pictures into the folder that is given: those of the help topics, or of every window on a
/// small screen in a font of so many points. FOLDER [windows POINTS light|dark]
int main(int argc, char** argv) {
  using namespace std::chrono;
  const QTemporaryDir home;
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home.path().toUtf8());
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const bool everyWindow = argc > 4;
  if (everyWindow && !corvane::MakeScreen(home.path())) return 1;
  corvane::PrepareBrowser();
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);  // the same picture at any time
  if (everyWindow) {
    QFont font = QApplication::font();
    font.setPointSize(atoi(argv[3]));
    QApplication::setFont(font);
    if (QByteArrayView(argv[4]) == "dark") QApplication::setPalette(corvane::DarkPalette());
  }
  corvane::SetOpenAnswer([] { return QString("examples/regular.csv"); });
  corvane::SetToday(year{2025} / May / 2);
  corvane::Session session;
  corvane::WindowRegistry windows(session);
  windows.routes().ShowDisclaimer();
  const corvane::Walk walk(everyWindow ? corvane::EveryWindow() : corvane::kHelpTopics,
                           everyWindow ? corvane::TakeScreen : corvane::TakeWindow,
                           argc > 1 ? argv[1] : ".");
  return QApplication::exec();
}
