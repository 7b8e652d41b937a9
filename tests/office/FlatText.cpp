#include "tests/office/FlatText.h"

#include <QXmlStreamReader>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "editor/document/TextRuns.h"

namespace trelonit::test {

namespace {

/// The properties of a style by their names without prefix.
struct Style {
  QString Parent;
  std::map<QString, QString> Properties;
  std::optional<std::vector<std::int32_t>> TabStops;
};

/// Twips of a length with its unit.
std::int32_t Twips(const QString& length) {
  static const std::map<QString, double> units{{QStringLiteral("in"), 1440},
                                               {QStringLiteral("cm"), 1440 / 2.54},
                                               {QStringLiteral("mm"), 144 / 2.54},
                                               {QStringLiteral("pt"), 20}};
  const auto unit = units.find(length.right(2));
  EXPECT_TRUE(unit != units.end()) << length.toStdString();
  return unit == units.end()
             ? 0
             : static_cast<std::int32_t>(std::lround(length.chopped(2).toDouble() * unit->second));
}

class Reader {
 public:
  Reader(const std::string& xml, OtherScriptLook other)
      : xml_(QByteArray::fromStdString(xml)), other_(other) {}
  RichDocument Read();

 private:
  void TakeElement();
  void ReadFont();
  void ReadStyle(const QString& key);
  void ReadParagraph();
  void ReadSpan(const std::vector<QString>& styles);
  void AddText(const QString& text, const std::vector<QString>& styles);

  QString Attribute(const char* name) const;
  QString Family() const { return Attribute("family"); }
  /// The property's value, searched in the styles from the last on, each with its parents.
  QString Property(const std::vector<QString>& styles, const QString& name) const;
  CharFormat FormatOf(const std::vector<QString>& styles, bool other) const;
  std::vector<std::int32_t> TabStopsOf(QString style) const;

  QXmlStreamReader xml_;
  OtherScriptLook other_;
  std::map<QString, QString> fonts_;
  std::map<QString, Style> styles_;  ///< by family and name
  RichDocument document_{{}};
};

RichDocument Reader::Read() {
  while (!xml_.atEnd()) {
    if (xml_.readNext() == QXmlStreamReader::StartElement) {
      TakeElement();
    }
  }
  EXPECT_FALSE(xml_.hasError()) << xml_.errorString().toStdString();
  return std::move(document_);
}

void Reader::TakeElement() {
  const auto name = xml_.qualifiedName();
  if (name == QLatin1String("style:font-face")) {
    ReadFont();
  } else if (name == QLatin1String("style:default-style")) {
    ReadStyle(Family() + QLatin1Char('/'));
  } else if (name == QLatin1String("style:style")) {
    ReadStyle(Family() + QLatin1Char('/') + Attribute("name"));
  } else if (name == QLatin1String("text:p") || name == QLatin1String("text:h")) {
    ReadParagraph();
  }
}

QString Reader::Attribute(const char* name) const {
  for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
    if (attribute.name() == QLatin1String(name)) {
      return attribute.value().toString();
    }
  }
  return {};
}

void Reader::ReadFont() {
  QString family = Attribute("font-family");
  if (family.startsWith(QLatin1Char('\''))) {
    family = family.mid(1, family.size() - 2);
  }
  fonts_[Attribute("name")] = family;
}

void Reader::ReadStyle(const QString& key) {
  Style& style = styles_[key];
  const QString parent = Attribute("parent-style-name");
  // Without a parent of its own a style stands upon its family's default.
  style.Parent = key.endsWith(QLatin1Char('/')) ? QString() : Family() + QLatin1Char('/') + parent;
  while (xml_.readNext() != QXmlStreamReader::EndElement ||
         (xml_.qualifiedName() != QLatin1String("style:style") &&
          xml_.qualifiedName() != QLatin1String("style:default-style"))) {
    if (!xml_.isStartElement()) {
      if (xml_.atEnd()) {
        return;
      }
      continue;
    }
    if (xml_.name() == QLatin1String("tab-stops")) {
      style.TabStops.emplace();
    } else if (xml_.name() == QLatin1String("tab-stop")) {
      ASSERT_TRUE(style.TabStops);
      style.TabStops->push_back(Twips(Attribute("position")));
    } else {
      for (const QXmlStreamAttribute& attribute : xml_.attributes()) {
        style.Properties[attribute.name().toString()] = attribute.value().toString();
      }
      // A colour takes the place of the window's that a style below it may have.
      if (!Attribute("color").isEmpty() && Attribute("use-window-font-color").isEmpty()) {
        style.Properties[QStringLiteral("use-window-font-color")] = QStringLiteral("false");
      }
    }
  }
}

void Reader::ReadParagraph() {
  const QString style = QStringLiteral("paragraph/") + Attribute("style-name");
  RichParagraph& paragraph = document_.Paragraphs.emplace_back();
  const QString alignment = Property({style}, QStringLiteral("text-align"));
  if (alignment == QLatin1String("center")) {
    paragraph.Alignment = ParagraphAlignment::Centre;
  } else if (alignment == QLatin1String("end") || alignment == QLatin1String("right")) {
    paragraph.Alignment = ParagraphAlignment::Right;
  } else if (alignment == QLatin1String("justify")) {
    paragraph.Alignment = ParagraphAlignment::Justified;
  }
  paragraph.TabStops = TabStopsOf(style);
  ReadSpan({style});
}

/// Up to the end of the present element.
void Reader::ReadSpan(const std::vector<QString>& styles) {
  while (xml_.readNext() != QXmlStreamReader::EndElement && !xml_.atEnd()) {
    if (xml_.isCharacters()) {
      AddText(xml_.text().toString(), styles);
    } else if (xml_.isStartElement()) {
      std::vector<QString> inner = styles;
      if (xml_.name() == QLatin1String("span")) {
        inner.push_back(QStringLiteral("text/") + Attribute("style-name"));
      } else if (xml_.name() == QLatin1String("s")) {
        const QString count = Attribute("c");
        AddText(QString(count.isEmpty() ? 1 : count.toInt(), QLatin1Char(' ')), styles);
      } else if (xml_.name() == QLatin1String("tab")) {
        AddText(QStringLiteral("\t"), styles);
      } else if (xml_.name() == QLatin1String("line-break")) {
        AddText(QStringLiteral("\n"), styles);
      }
      ReadSpan(inner);
    }
  }
}

void Reader::AddText(const QString& text, const std::vector<QString>& styles) {
  const CharFormat main = FormatOf(styles, false);
  const CharFormat other = FormatOf(styles, true);
  for (const QChar character : text) {
    const char16_t unit = character.unicode();
    AppendRuns(document_.Paragraphs.back().Runs,
               {{std::u16string(1, unit), IsOfOtherScript(unit) ? other : main}});
  }
}

QString Reader::Property(const std::vector<QString>& styles, const QString& name) const {
  for (auto own = styles.rbegin(); own != styles.rend(); ++own) {
    for (auto style = styles_.find(*own); style != styles_.end();
         style = styles_.find(style->second.Parent)) {
      if (const auto found = style->second.Properties.find(name);
          found != style->second.Properties.end()) {
        return found->second;
      }
    }
  }
  return {};
}

CharFormat Reader::FormatOf(const std::vector<QString>& styles, bool other) const {
  QString suffix;
  if (other) {
    suffix = other_ == OtherScriptLook::EastAsian ? QStringLiteral("-asian")
                                                  : QStringLiteral("-complex");
  }
  const auto property = [&](const char* name) { return Property(styles, QLatin1String(name)); };
  const auto own = [&](const char* name) { return Property(styles, QLatin1String(name) + suffix); };
  const auto isLine = [](const QString& style) {
    return !style.isEmpty() && style != QLatin1String("none");
  };
  CharFormat format;
  const QString font = own("font-name");
  const auto family = fonts_.find(font);
  format.FontName = (family == fonts_.end() ? font : family->second).toStdString();
  const QString size = own("font-size");
  EXPECT_TRUE(size.endsWith(QLatin1String("pt"))) << size.toStdString();
  format.FontSize = size.chopped(2).toDouble();
  format.Bold = own("font-weight") == QLatin1String("bold");
  format.Italic = own("font-style") == QLatin1String("italic");
  format.Underline = isLine(property("text-underline-style"));
  format.StrikeThru = isLine(property("text-line-through-style"));
  const QString colour = property("color");
  if (colour.startsWith(QLatin1Char('#')) &&
      property("use-window-font-color") != QLatin1String("true")) {
    const auto rgb = colour.mid(1).toUInt(nullptr, 16);
    format.TextColor = (rgb >> 16) | (rgb & 0xFF00U) | ((rgb & 0xFFU) << 16);
  }
  return format;
}

std::vector<std::int32_t> Reader::TabStopsOf(QString style) const {
  for (auto found = styles_.find(style); found != styles_.end();
       found = styles_.find(found->second.Parent)) {
    if (found->second.TabStops) {
      return *found->second.TabStops;
    }
  }
  return {};
}

}  // namespace

bool IsOfOtherScript(char16_t unit) {
  return unit >= 0x0590 && (unit < 0x1E00 || unit >= 0x2E80);
}

RichDocument ReadFlatText(const std::string& xml, OtherScriptLook other) {
  return Reader(xml, other).Read();
}

}  // namespace trelonit::test
