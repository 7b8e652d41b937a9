#include "windows/help/HelpPages.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <tuple>

#include "windows/help/HelpKey.h"

namespace trelonit {

namespace {

const char* const pagesFolder = ":/help/pages/";

QByteArray Content(const QString& file) {
  QFile source(file);
  return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QJsonDocument Json(const char* name) {
  return QJsonDocument::fromJson(Content(QStringLiteral(":/help/") + QLatin1String(name)));
}

std::vector<HelpEntry> Entries(const QJsonArray& list) {
  std::vector<HelpEntry> entries;
  for (const QJsonValue& value : list) {
    const QJsonObject entry = value.toObject();
    entries.push_back({entry[QLatin1String("title")].toString(),
                       entry[QLatin1String("page")].toString(),
                       Entries(entry[QLatin1String("children")].toArray())});
  }
  return entries;
}

const HelpEntry* EntryOf(const std::vector<HelpEntry>& entries, const QString& page) {
  for (const HelpEntry& entry : entries) {
    if (entry.Page == page) {
      return &entry;
    }
    if (const HelpEntry* below = EntryOf(entry.Children, page)) {
      return below;
    }
  }
  return nullptr;
}

/// Letter by letter, so that places in the folded text are places in the text.
QString Folded(const QString& text) {
  QString folded = text;
  for (QChar& letter : folded) {
    letter = letter.toCaseFolded();
    if (letter == QChar(u'ё')) {
      letter = QChar(u'е');
    } else if (letter == QChar::Nbsp) {
      letter = QLatin1Char(' ');
    }
  }
  return folded;
}

QString ExcerptAt(const QString& text, const HelpSpan& place) {
  constexpr int before = 40;
  constexpr int whole = 120;
  int start = std::max(0, place.Start - before);
  if (start > 0) {
    // No half word in front; a word longer than that is cut.
    const auto blank = static_cast<int>(text.indexOf(QLatin1Char(' '), start));
    start = blank >= 0 && blank < place.Start ? blank + 1 : start;
  }
  QString excerpt = text.mid(start, whole).simplified();
  if (start + whole < text.size()) {
    excerpt = excerpt.left(std::max<qsizetype>(excerpt.lastIndexOf(QLatin1Char(' ')), 1));
    excerpt += QStringLiteral(" ...");
  }
  return start > 0 ? QStringLiteral("... ") + excerpt : excerpt;
}

/// A message as the guide tells it: what changes from one time to the other stands in italics.
class MessagePattern {
 public:
  explicit MessagePattern(QString markup) {
    static const QRegularExpression changing(QStringLiteral("<i>[^<]*</i>"));
    markup.replace(QLatin1String("<br>"), QLatin1String("\n"));
    QStringList words;
    for (QString fixed : markup.split(changing)) {
      fixed.replace(QLatin1String("&lt;"), QLatin1String("<"));
      fixed.replace(QLatin1String("&gt;"), QLatin1String(">"));
      fixed.replace(QLatin1String("&amp;"), QLatin1String("&"));
      tellsText_ = tellsText_ || !fixed.trimmed().isEmpty();
      words += QRegularExpression::escape(fixed);
    }
    text_ = QRegularExpression(QRegularExpression::anchoredPattern(words.join(QLatin1String(".*"))),
                               QRegularExpression::DotMatchesEverythingOption);
  }
  bool Fits(const QString& text) const { return text_.match(text).hasMatch(); }
  /// Whether it has words of its own.
  bool TellsText() const { return tellsText_; }

 private:
  QRegularExpression text_;
  bool tellsText_ = false;
};

}  // namespace

std::vector<HelpSpan> FindWords(const QString& text, const QStringList& words) {
  const QString folded = Folded(text);
  std::vector<HelpSpan> found;
  for (const QString& word : words) {
    const QString sought = Folded(word);
    if (sought.isEmpty()) {
      continue;
    }
    const auto length = static_cast<int>(sought.size());
    for (qsizetype at = folded.indexOf(sought); at >= 0; at = folded.indexOf(sought, at + length)) {
      found.push_back({static_cast<int>(at), length});
    }
  }
  std::sort(found.begin(), found.end(), [](const HelpSpan& one, const HelpSpan& other) {
    return std::tuple(one.Start, -one.Length) < std::tuple(other.Start, -other.Length);
  });
  std::vector<HelpSpan> apart;
  for (const HelpSpan& span : found) {
    const int end = apart.empty() ? 0 : apart.back().Start + apart.back().Length;
    if (span.Start + span.Length > end) {
      // What overlaps is joined: "узел" and "лов" are one place in "узелов".
      if (!apart.empty() && span.Start < end) {
        apart.back().Length = span.Start + span.Length - apart.back().Start;
      } else {
        apart.push_back(span);
      }
    }
  }
  return apart;
}

QStringList SearchWords(const QString& line) {
  static const QRegularExpression pattern(QStringLiteral("\"([^\"]+)\"|«([^»]+)»|([^\\s\"]+)"));
  QStringList words;
  auto matches = pattern.globalMatch(line);
  while (matches.hasNext()) {
    const QRegularExpressionMatch match = matches.next();
    const QString word = match.captured(match.lastCapturedIndex()).simplified();
    if (!word.isEmpty()) {
      words << word;
    }
  }
  return words;
}

HelpPages::HelpPages() : contents_(Entries(Json("contents.json").array())) {
  const QJsonObject terms = Json("index-terms.json").object();
  for (auto term = terms.begin(); term != terms.end(); ++term) {
    QStringList pages;
    for (const QJsonValue& page : term.value().toArray()) {
      pages << page.toString();
    }
    terms_.push_back({term.key(), pages});
  }
  std::sort(terms_.begin(), terms_.end(), [](const HelpTerm& one, const HelpTerm& other) {
    return QString::compare(Folded(one.Term), Folded(other.Term)) < 0;
  });
  const QJsonObject places = Json("places.json").object();
  for (auto place = places.begin(); place != places.end(); ++place) {
    places_.insert(place.key(), place.value().toString());
  }
}

QString HelpPages::FirstPage() {
  return QStringLiteral("index.html");
}

QString HelpPages::PageOf(const QString& place) const {
  if (const std::optional<ToldMessage> message = MessageOf(place)) {
    return PageOfMessage(message->Title, message->Text);
  }
  return places_.value(place, FirstPage());
}

QString HelpPages::PageOfMessage(const QString& title, const QString& text) {
  const QString page = QStringLiteral("messages.html");
  const QString guide = QString::fromUtf8(Content(QLatin1String(pagesFolder) + page));
  static const QRegularExpression part(QStringLiteral(
      "<h[23] id=\"([^\"]+)\">|<p class=\"msg\">(.*?)</p>(?:\\s*<p><b>[^<]*</b> <span "
      "class=\"c\">([^<]*)</span>)?"));
  QString anchor;
  auto parts = part.globalMatch(guide);
  while (parts.hasNext()) {
    const QRegularExpressionMatch match = parts.next();
    if (!match.captured(1).isEmpty()) {
      anchor = match.captured(1);
      continue;
    }
    const MessagePattern pattern(match.captured(2));
    if (pattern.Fits(text) && (pattern.TellsText() || match.captured(3) == title)) {
      return page + QLatin1Char('#') + anchor;
    }
  }
  return page;
}

QUrl HelpPages::UrlOf(const QString& page) {
  QUrl url(QStringLiteral("qrc") + QLatin1String(pagesFolder) +
           page.section(QLatin1Char('#'), 0, 0));
  if (page.contains(QLatin1Char('#'))) {
    url.setFragment(page.section(QLatin1Char('#'), 1));
  }
  return url;
}

QString HelpPages::PageAt(const QUrl& url) {
  const QString file = QLatin1Char(':') + url.path();
  const QString folder = QLatin1String(pagesFolder);
  const QString page = file.mid(folder.size());
  // The pages stand side by side: a path on from there leads out of the guide.
  if (url.scheme() != QLatin1String("qrc") || !url.host().isEmpty() || !file.startsWith(folder) ||
      page.isEmpty() || page.contains(QLatin1Char('/')) || !QFile::exists(file)) {
    return {};
  }
  return url.hasFragment() ? page + QLatin1Char('#') + url.fragment() : page;
}

const std::vector<HelpPages::Text>& HelpPages::Texts() const {
  if (texts_.empty()) {
    const QString folder = QLatin1String(pagesFolder);
    for (const QString& page : QDir(folder).entryList(QDir::Files, QDir::Name)) {
      QTextDocument document;
      document.setHtml(QString::fromUtf8(Content(folder + page)));
      texts_.push_back(
          {page, document.metaInformation(QTextDocument::DocumentTitle), document.toPlainText()});
    }
  }
  return texts_;
}

QString HelpPages::TitleOf(const QString& page) const {
  const HelpEntry* exact = EntryOf(contents_, page);
  const HelpEntry* whole =
      exact == nullptr ? EntryOf(contents_, page.section(QLatin1Char('#'), 0, 0)) : exact;
  return whole == nullptr ? QString() : whole->Title;
}

std::vector<HelpHit> HelpPages::Search(const QStringList& words) const {
  struct Found {
    HelpHit Hit;
    bool InTitle = false;
  };
  std::vector<Found> found;
  for (const Text& text : Texts()) {
    const bool all =
        !words.isEmpty() && std::all_of(words.begin(), words.end(), [&](const QString& word) {
          return !FindWords(text.Body, {word}).empty();
        });
    if (all) {
      const std::vector<HelpSpan> places = FindWords(text.Body, words);
      found.push_back({{text.Page, text.Title, ExcerptAt(text.Body, places.front()),
                        static_cast<int>(places.size())},
                       !FindWords(text.Title, words).empty()});
    }
  }
  std::stable_sort(found.begin(), found.end(), [](const Found& one, const Found& other) {
    return std::tuple(other.InTitle, other.Hit.Count) < std::tuple(one.InTitle, one.Hit.Count);
  });
  std::vector<HelpHit> hits;
  for (Found& one : found) {
    hits.push_back(std::move(one.Hit));
  }
  return hits;
}

}  // namespace trelonit
