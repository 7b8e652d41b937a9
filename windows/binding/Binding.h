#pragma once

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <functional>

#include "platform/forms/Controls.h"

namespace trelonit {

// Keeps widgets and control states in step: what the logic sets shows in the widget, what the user
// does reaches the state, which raises the logic's events. A state outlives its widget; a widget
// that goes takes its binding with it.

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);
/// The name of a file with the separators of the system, which the toolkit writes as "/".
std::string FileFromQt(const QString& name);

/// Runs show now and whenever the state changes, as long as the owner lives.
void Follow(ControlState& state, QObject* owner, std::function<void()> show);

/// Shows what every control has: enabled and visible.
void ShowCommon(const ControlState& state, QWidget* widget);
/// Shows the text of a label in its colour: the usual one or red.
void ShowColoured(const Label& state, QLabel* label);

void Bind(Label& state, QLabel* label);
/// Typing goes to the state at once.
void Bind(TextBox& state, QLineEdit* edit);
/// Choosing selects. A text that is no entry shows too, as the logic may set one. Where the box can
/// be edited, a typed text counts when it is finished, and raises Click like a choice.
void Bind(ComboBox& state, QComboBox* box);
void Bind(CheckBox& state, QCheckBox* box);
// Which options are set is the logic's rule: Qt clears no neighbours by itself, and pressing a set
// option leaves it set.
void Bind(OptionButton& state, QAbstractButton* button);
/// The option with this number of a group.
void Bind(OptionGroup& group, Long number, QAbstractButton* button);
void Bind(ListBox& state, QListWidget* list);
/// The first row of the state is the head.
void Bind(Grid& state, QTableWidget* table);
/// Enabled, visible and the check mark. The text is the window's: it tells the keys too.
void Bind(MenuEntry& state, QAction* action);
void Bind(TabControl& state, QTabWidget* tabs);
void Bind(Timer& state, QTimer* timer);

}  // namespace trelonit
