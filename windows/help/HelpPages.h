#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace trelonit {

/// An entry of the contents. A page is named as the guide's links name it: "page.html" or
/// "page.html#anchor".
struct HelpEntry {
  QString Title;
  QString Page;
  std::vector<HelpEntry> Children;
};

/// A term of the index with the pages that explain it.
struct HelpTerm {
  QString Term;
  QStringList Pages;
};

/// A stretch of a text, in UTF-16 units.
struct HelpSpan {
  int Start = 0;
  int Length = 0;

  friend bool operator==(const HelpSpan&, const HelpSpan&) = default;
};

/// A page that a search found.
struct HelpHit {
  QString Page;
  QString Title;
  /// The words round the first place.
  QString Excerpt;
  /// How many places there are.
  int Count = 0;
};

/// Where the words stand in the text, in any case, "ё" as "е"; in their order, none within another.
std::vector<HelpSpan> FindWords(const QString& text, const QStringList& words);

/// The words of a search line. What stands in quotation marks is one of them.
QStringList SearchWords(const QString& line);

/// The user's guide, which the program carries in itself.
class HelpPages {
 public:
  HelpPages();

  const std::vector<HelpEntry>& Contents() const { return contents_; }
  const std::vector<HelpTerm>& Terms() const { return terms_; }
  /// The page of a place of the program (see HelpKey.h); the first page where the place has none.
  QString PageOf(const QString& place) const;
  /// The part of the page of messages that tells of the one with this title and text; the whole
  /// page where none does.
  static QString PageOfMessage(const QString& title, const QString& text);
  /// The places that have a page.
  QStringList Places() const { return places_.keys(); }
  static QString FirstPage();

  /// Where a page is read from.
  static QUrl UrlOf(const QString& page);
  /// The page that is read from there, with its anchor; empty where it is none of the guide.
  static QString PageAt(const QUrl& url);
  /// The title in the contents: of the place on the page, or of the page where the place has none.
  QString TitleOf(const QString& page) const;

  /// The pages that have every one of the words; those with a word in their title first, then
  /// those with more places.
  std::vector<HelpHit> Search(const QStringList& words) const;

 private:
  struct Text {
    QString Page;
    QString Title;
    QString Body;
  };
  /// Read at the first search: the contents stand without it.
  const std::vector<Text>& Texts() const;

  std::vector<HelpEntry> contents_;
  std::vector<HelpTerm> terms_;
  QMap<QString, QString> places_;
  mutable std::vector<Text> texts_;
};

}  // namespace trelonit
