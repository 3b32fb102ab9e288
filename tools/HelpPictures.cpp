#include <set>

#include <QtTest>
#include <QtWidgets>

#include "platform/Pictures.h"
#include "platform/WebView.h"
#include "support/Clock.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

/// Until a window that was just shown, or its report, has come to rest.
constexpr int kRestMilliseconds = 500;
constexpr int kReportMilliseconds = 3000;

/// What is typed, "&c" for Alt+C, and the picture that is taken of the window in front then.
struct Step {
  QString keys;
  const char* picture = nullptr;
};

/// The keys of the topics "A first disclosure" and "A first statement".
const Step kWalk[] = {
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
    {"\t0\t0\t6.58\t6.3875\t\t \t\t0\t1000\t\t5.25", "statement-period"},
    {"&c", "statement-results"},
    {"&b"},
    {QString("\t").repeated(12) + " "},
    {QString("1500\t").repeated(15) + QString("500\t").repeated(15), "daily-balances"},
    {"&c"},
    {"&c"},
    {"&s", "interest-report"},
};

/// The window in front. Without a window manager nobody brings back the one behind a window that
/// has closed.
QWidget* Front() {
  if (QWidget* window = QApplication::activeWindow()) return window;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<Form*>(window) && window->isVisible()) {
      window->activateWindow();
      return window;
    }
  }
  return nullptr;
}

void Type(const QString& keys) {
  for (qsizetype k = 0; k < keys.size(); ++k) {
    QWidget* window = Front();
    if (keys[k] == '&') {
      QTest::keyClick(window, keys[++k].toUpper().toLatin1(), Qt::AltModifier);
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

bool TakePicture(QWidget* window, const QString& path) {
  // Where it was built is nobody's concern.
  if (auto* config = window->findChild<QPlainTextEdit*>("TextConfig")) {
    const QString folder = QApplication::applicationDirPath();
    config->setPlainText(config->toPlainText().replace(folder, "/opt/corvane"));
  }
  constexpr int kSmallestFile = 0;
  return WithPalette(window->grab().toImage()).save(path, "PNG", kSmallestFile);
}

/// Goes through the walk, one step each time that the windows have come to rest. A step may open a
/// window that returns only after later steps have closed it.
class Walk : public QObject {
 public:
  explicit Walk(const QString& folder) : folder_(folder) { Rest(); }

 private:
  void Rest() {
    const QWidget* window = Front();
    const bool isReport = window && window->findChild<WebView*>();
    QTimer::singleShot(isReport ? kReportMilliseconds : kRestMilliseconds, this,
                       [this] { Continue(); });
  }

  void Continue() {
    if (!typed_) {
      typed_ = true;
      QTimer::singleShot(0, this, [this] { Rest(); });
      return Type(step_->keys);
    }
    if (step_->picture && !TakePicture(Front(), PathOfPicture())) {
      qWarning("%s was not written", qPrintable(PathOfPicture()));
      return QCoreApplication::exit(1);
    }
    typed_ = false;
    if (++step_ == std::end(kWalk)) return QCoreApplication::exit();
    Rest();
  }

  QString PathOfPicture() const { return QDir(folder_).filePath(QString(step_->picture) + ".png"); }

  QString folder_;
  const Step* step_ = std::begin(kWalk);
  bool typed_ = false;
};

}  // namespace

}  // namespace corvane

/// Takes the pictures of the help topics: goes through the windows with real keys, without a
/// display, and writes one picture of each into the folder that is given.
int main(int argc, char** argv) {
  using namespace std::chrono;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QTemporaryDir home;
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
    qputenv(name, home.path().toUtf8());
  }
  corvane::PrepareWebView();
  QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);  // the same picture at any time
  corvane::SetToday(year{2025} / May / 2);
  corvane::Session session;
  corvane::WindowRegistry windows(session);
  windows.routes().ShowDisclaimer();
  const corvane::Walk walk(argc > 1 ? argv[1] : ".");
  return QApplication::exec();
}
