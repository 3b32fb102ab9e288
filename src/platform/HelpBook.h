#pragma once

#include <filesystem>
#include <map>
#include <variant>
#include <vector>

#include <QString>

#include "platform/HelpFile.h"

namespace corvane {

/// An entry of the table of contents. A heading has no topic.
struct HelpEntry {
  QString title;
  QString topic;
  std::vector<HelpEntry> entries;
};

/// The topics by context number, of a help file's entries "#IVB" and "#STRINGS". The first is its
/// own length, then pairs: a context number and the place in the second where a path stands. The
/// compiler writes the path that the source had when it was compiled, of which the name is what the
/// topic has in the file.
std::map<int, QString> ContextsOf(const QByteArray& numbers, const QByteArray& strings);

/// The help of the program: its topics, named by their files, such as "main-menu.htm".
class HelpBook {
 public:
  /// Reads the whole file; what it refuses, and in which words, stands at ReadHelpFile.
  static std::variant<HelpBook, QString> Open(const std::filesystem::path& file);

  /// The topic of a context number; that of the lowest one, the main menu, for an unknown number.
  QString TopicOf(int context) const;
  const std::vector<HelpEntry>& Contents() const { return contents_; }
  std::vector<QString> Topics() const;
  QString TitleOf(const QString& topic) const;

  /// The topics that have every word, in any case and as part of longer words too; those that have
  /// them in their title first, then those that have them more often.
  std::vector<QString> Find(const QString& words);

  /// The bytes of a topic, picture or style sheet; nothing when there is none of that name.
  const QByteArray* File(const QString& name) const;

 private:
  explicit HelpBook(HelpContent content);

  int Weight(const QString& topic, const QStringList& words);

  HelpContent content_;
  std::map<int, QString> contexts_;
  std::vector<HelpEntry> contents_;
  std::map<QString, QString> texts_;  ///< of the topics, made when they are first searched
};

}  // namespace corvane
