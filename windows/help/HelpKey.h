#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <functional>
#include <optional>

#include "opinion/Findings.h"

class QWidget;

namespace trelonit {

// The places of the program that have a page of their own in the guide.

namespace help_place {
inline constexpr const char* Scheme = "tab0";
inline constexpr const char* Sections = "tab1";
inline constexpr const char* Loads = "tab2";
inline constexpr const char* Results = "results";
inline constexpr const char* Search = "search";
inline constexpr const char* Steel = "steel";
inline constexpr const char* Parameters = "parameters";
inline constexpr const char* Manager = "manager";
inline constexpr const char* About = "about";
inline constexpr const char* Otchet = "otchet";
inline constexpr const char* Find = "find";
inline constexpr const char* Date = "date";
inline constexpr const char* Assoc = "assoc";
inline constexpr const char* Drawing = "drawing";
inline constexpr const char* Opinion = "opinion";
inline constexpr const char* LiveStrip = "live";
inline constexpr const char* Variants = "variants";

inline constexpr std::array All{Scheme,     Sections, Loads,   Results,   Search,  Steel,
                                Parameters, Manager,  About,   Otchet,    Find,    Date,
                                Assoc,      Drawing,  Opinion, LiveStrip, Variants};
}  // namespace help_place

/// The place of a finding: "finding-check-differs", ...
QString FindingPlace(FindingCode code);

/// A message as it was shown.
struct ToldMessage {
  QString Title;
  QString Text;
};
/// The place of a message; its page is the part of the guide that tells of it.
QString MessagePlace(const ToldMessage& message);
/// The message of such a place; nothing for another one.
std::optional<ToldMessage> MessageOf(const QString& place);

/// Marks a window or the page of a tab as this place.
void SetHelpPlace(QWidget& widget, const QString& place);

/// The place in which the widget is: its own, that of the tab in front of its window, or that of
/// what it stands in; empty where none of them has one.
QString HelpPlaceOf(const QWidget* widget);

/// Opens the page of a place, as F1 does, for a button that stands there.
void AskForHelp(QWidget& asking, const QString& place);

/// F1 anywhere in the program, and what buttons ask for. It comes before the menu's own F1, which
/// knows no place.
class HelpKey : public QObject {
 public:
  /// Open gets the place where the key was pressed.
  explicit HelpKey(std::function<void(const QString& place)> open);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(const QString& place)> open_;
};

}  // namespace trelonit
