#include "platform/HelpBook.h"

#include <algorithm>

#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QtEndian>

namespace corvane {

namespace {

constexpr int kTitleWeight = 1000;

QString PlainText(const QString& html) {
  return QTextDocumentFragment::fromHtml(html).toPlainText();
}

quint32 NumberAt(const QByteArray& bytes, qsizetype place) {
  return qFromLittleEndian<quint32>(bytes.constData() + place);
}

using Tags = QRegularExpressionMatchIterator;

/// The tags that make up a table of contents: lists, entries and what is said of an entry.
Tags ContentsTags(const QByteArray& contents) {
  static const QRegularExpression tag(
      R"~(<(ul|/ul|object)\b|<param\s+name="(\w+)"\s+value="([^"]*)")~",
      QRegularExpression::CaseInsensitiveOption);
  return tag.globalMatch(QString::fromUtf8(contents));
}

/// The entries up to the end of their list. A list inside belongs to the entry before it.
std::vector<HelpEntry> EntriesOf(Tags& tags) {
  std::vector<HelpEntry> entries;
  while (tags.hasNext()) {
    const auto tag = tags.next();
    const QString name = tag.captured(1).toLower() + tag.captured(2).toLower();
    if (name == "/ul") break;
    if (name == "object") entries.push_back({});
    if (name == "ul") (entries.empty() ? entries : entries.back().entries) = EntriesOf(tags);
    if (name == "name") entries.back().title = PlainText(tag.captured(3));
    if (name == "local") entries.back().topic = tag.captured(3);
  }
  return entries;
}

}  // namespace

std::map<int, QString> ContextsOf(const QByteArray& numbers, const QByteArray& strings) {
  constexpr qsizetype kNumber = sizeof(quint32);
  std::map<int, QString> contexts;
  for (qsizetype at = kNumber; at + 2 * kNumber <= numbers.size(); at += 2 * kNumber) {
    const qsizetype start = NumberAt(numbers, at + kNumber);
    const qsizetype end = strings.indexOf('\0', start);
    const QString path = QString::fromUtf8(strings.mid(start, end - start));
    contexts[static_cast<int>(NumberAt(numbers, at))] = path.section('/', -1);
  }
  return contexts;
}

HelpBook::HelpBook(HelpContent content)
    : content_(std::move(content)), contexts_(ContextsOf(content_["#IVB"], content_["#STRINGS"])) {
  Tags tags = ContentsTags(content_["corvane.hhc"]);
  contents_ = EntriesOf(tags);
}

std::variant<HelpBook, QString> HelpBook::Open(const std::filesystem::path& file) {
  auto content = ReadHelpFile(file);
  if (const auto* message = std::get_if<QString>(&content)) return *message;
  return HelpBook(std::get<HelpContent>(std::move(content)));
}

QString HelpBook::TopicOf(int context) const {
  const auto topic = contexts_.find(context);
  return (topic == contexts_.end() ? contexts_.begin() : topic)->second;
}

std::vector<QString> HelpBook::Topics() const {
  std::vector<QString> topics;
  for (const auto& [name, bytes] : content_) {
    if (name.endsWith(".htm")) topics.push_back(name);
  }
  return topics;
}

QString HelpBook::TitleOf(const QString& topic) const {
  static const QRegularExpression title("<title>(.*?)</title>");
  const QByteArray* html = File(topic);
  return html ? PlainText(title.match(QString::fromUtf8(*html)).captured(1)) : QString();
}

const QByteArray* HelpBook::File(const QString& name) const {
  const auto file = content_.find(name);
  return file == content_.end() ? nullptr : &file->second;
}

int HelpBook::Weight(const QString& topic, const QStringList& words) {
  QString& text = texts_[topic];
  if (text.isNull()) text = PlainText(QString::fromUtf8(*File(topic)));
  const QString title = TitleOf(topic);
  int weight = 0;
  for (const QString& word : words) {
    const auto times = text.count(word, Qt::CaseInsensitive) +
                       kTitleWeight * title.count(word, Qt::CaseInsensitive);
    if (times == 0) return 0;
    weight += static_cast<int>(times);
  }
  return weight;
}

std::vector<QString> HelpBook::Find(const QString& words) {
  const QStringList wanted = words.split(' ', Qt::SkipEmptyParts);
  std::multimap<int, QString, std::greater<>> found;
  for (const QString& topic : Topics()) {
    if (const int weight = Weight(topic, wanted)) found.emplace(weight, topic);
  }
  std::vector<QString> topics;
  for (const auto& [weight, topic] : found) topics.push_back(topic);
  return topics;
}

}  // namespace corvane
