#pragma once

#include <QColor>
#include <QFont>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <cstddef>
#include <map>
#include <string>

#include "editor/document/RichDocument.h"

namespace trelonit {

// Documents of the editor as documents of Qt and back. Lengths of Qt's documents are logical
// pixels, 96 an inch.

/// A family that stands for itself if it is there, and for one of its kind otherwise: letters of
/// one width stay so, and Cyrillic is never missing.
QStringList FamiliesFor(const std::string& family);
QFont FontFor(const CharFormat& format);

QColor ToQt(Color color);
Color ColorOf(const QColor& color);

/// Black is written as no colour at all: it is drawn in the colour of the paper's ink.
QTextCharFormat ToQt(const CharFormat& format);
/// What the format leaves open is as in a CharFormat of its own.
CharFormat FromQt(const QTextCharFormat& format);
QTextBlockFormat BlockFormatOf(const RichParagraph& paragraph, double zoom = 1);

/// A place between two characters.
struct RichPlace {
  std::size_t Paragraph = 0;
  std::size_t Offset = 0;  ///< UTF-16 units from the paragraph's start
};

/// Writes parts of a document into one of Qt. Keeps the formats that it has made.
class RichDocumentWriter {
 public:
  /// Puts in what stands between the two places. The paragraphs behind the first bring their
  /// alignment and tab stops with them.
  void Insert(QTextCursor& cursor, const RichDocument& document, const RichPlace& first,
              const RichPlace& last);
  const QTextCharFormat& FormatOf(const CharFormat& format);
  /// All letters and tabs this many times as large as told, from now on.
  void SetZoom(double zoom);
  double Zoom() const { return zoom_; }

 private:
  struct Less {
    bool operator()(const CharFormat& left, const CharFormat& right) const;
  };
  void InsertRuns(QTextCursor& cursor, const RichParagraph& paragraph, std::size_t from,
                  std::size_t to);

  double zoom_ = 1;
  std::map<CharFormat, QTextCharFormat, Less> formats_;
};

/// Replaces all that the text document holds. Its undo stack is lost.
void FillDocument(QTextDocument& target, const RichDocument& document);
void FillDocument(QTextDocument& target, const RichDocument& document, RichDocumentWriter& writer);

/// Pictures, tables and lists give their text alone; a line separator begins a paragraph.
RichDocument ReadDocument(const QTextDocument& source);
RichDocument ReadSelection(const QTextCursor& selection);

}  // namespace trelonit
