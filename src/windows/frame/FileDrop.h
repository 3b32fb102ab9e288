#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include <QObject>

class QWidget;

namespace corvane {

/// Lets files be dropped onto a window.
class FileDrop : public QObject {
 public:
  using Handler = std::function<void(const std::vector<std::filesystem::path>& files)>;

  FileDrop(QWidget& window, Handler handler);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Handler handler_;
};

}  // namespace corvane
