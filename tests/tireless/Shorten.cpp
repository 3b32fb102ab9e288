#include "Shorten.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace corvane {

namespace {

/// What the browser engine says of the machine it runs on, and Qt Test of a key that comes when its
/// window has just closed.
bool IsOfTheTools(const QString& line) {
  static const QRegularExpression tools(
      "^(\\[\\d+:\\d+:|Sandboxing disabled|qt\\.webenginecontext|GL |Surface |QSG |Using |Init "
      "Parameters|  \\*  |libva|$|.*(WebEngineContext used before|No suitable "
      "graphics|Vulkan|vulkan|This plugin does not support|XDG_RUNTIME_DIR|"
      "Keyboard event not accepted by receiving widget))");
  return line.trimmed().isEmpty() || tools.match(line).hasMatch();
}

std::string Quoted(const QString& path) {
  return "'" + path.toStdString() + "'";
}

/// What broke, or nothing.
QString FaultOf(const std::string& program, const std::vector<Act>& acts) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("acts");
  const QString errors = folder.filePath("errors");
  {
    std::ofstream out(file.toStdString());
    for (const Act& act : acts) out << TextOf(act) << '\n';
  }
  // It may end at once, wherever it is: its home goes with this folder.
  const int status = std::system(("TMPDIR=" + Quoted(folder.path()) + " " +
                                  Quoted(QString::fromStdString(program)) + " " + Quoted(file) +
                                  " 2>" + Quoted(errors))
                                     .c_str());
  QFile said(errors);
  said.open(QIODevice::ReadOnly);
  QString fault;
  for (const QString& line : QString::fromUtf8(said.readAll()).split('\n')) {
    if (!IsOfTheTools(line)) fault += line + '\n';
  }
  if (status != 0) fault += "exit status " + QString::number(status);
  return fault;
}

/// Leaves out ever smaller parts of what is left, as long as it still breaks.
std::vector<Act> Shortened(const std::string& program, std::vector<Act> acts) {
  for (std::size_t part = acts.size() / 2; part > 0; part /= 2) {
    for (std::size_t at = 0; at + part <= acts.size();) {
      std::vector<Act> fewer = acts;
      const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(from, from + static_cast<std::ptrdiff_t>(part));
      if (FaultOf(program, fewer).isEmpty()) {
        at += part;
      } else {
        acts = std::move(fewer);
      }
    }
  }
  return acts;
}

}  // namespace

std::vector<Act> ReadActs(const std::string& file) {
  std::ifstream in(file);
  std::vector<Act> acts;
  for (std::string line; std::getline(in, line);) acts.push_back(ActFrom(line));
  return acts;
}

int TryAndShorten(const std::string& program, const std::vector<Act>& acts) {
  const QString fault = FaultOf(program, acts);
  if (fault.isEmpty()) return 0;
  std::cerr << fault.toStdString() << "Shortening ..." << std::endl;
  // What came after the act that broke it is of no use.
  static const QRegularExpression place("act (\\d+)");
  const auto match = place.match(fault);
  std::vector<Act> shorter = acts;
  if (match.hasMatch()) shorter.resize(qMin(shorter.size(), match.captured(1).toULong() + 1));
  for (const Act& act : Shortened(program, shorter)) std::cerr << TextOf(act) << '\n';
  return 1;
}

}  // namespace corvane
