#include "windows/binding/Binding.h"

#include <QDir>
#include <QHeaderView>
#include <QPointer>
#include <QSignalBlocker>
#include <algorithm>

#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

/// A grey box is one whose input does not count at present: it takes the colour of the window.
void ShowBackground(Color color, QWidget* widget) {
  const bool grey = color == colorDisabledGrey;
  widget->setBackgroundRole(grey ? QPalette::Window : QPalette::Base);
  // A line edit fills itself with the base colour, whatever its role.
  QPalette palette;
  if (grey) {
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  }
  widget->setPalette(palette);
}

void RefreshEntries(const ComboBox& state, QComboBox* box) {
  const auto& list = state.List();
  // The logic only clears lists and adds to them, so that what is there already is right. Filling
  // one of 800 sizes thus stays linear.
  if (static_cast<int>(list.size()) < box->count()) {
    box->clear();
  }
  for (std::size_t entry = static_cast<std::size_t>(box->count()); entry < list.size(); ++entry) {
    box->addItem(ToQt(list[entry]));
  }
}

void RefreshBox(const ComboBox& state, QComboBox* box) {
  const QSignalBlocker quiet(box);
  RefreshEntries(state, box);
  box->setCurrentIndex(state.ListIndex());
  const QString text = ToQt(state.Text());
  if (box->isEditable()) {
    if (box->currentText() != text) {
      box->setEditText(text);
    }
  } else {
    box->setPlaceholderText(text);
  }
  ShowBackground(state.BackColor(), box);
  ShowCommon(state, box);
}

void RefreshTable(const Grid& state, QTableWidget* table) {
  const auto& rows = state.Rows();
  table->setRowCount(std::max<int>(0, static_cast<int>(rows.size()) - 1));
  if (rows.empty()) {
    return;
  }
  table->setColumnCount(static_cast<int>(rows.front().size()));
  for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
    const Grid::Row& texts = rows[static_cast<std::size_t>(row)];
    for (int column = 0; column < static_cast<int>(texts.size()); ++column) {
      auto* item = new QTableWidgetItem(ToQt(texts[static_cast<std::size_t>(column)]));
      if (row == 0) {
        table->setHorizontalHeaderItem(column, item);
        continue;
      }
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      // The last column holds the numbers.
      if (column + 1 == static_cast<int>(texts.size())) {
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      }
      table->setItem(row - 1, column, item);
    }
  }
}

/// The first of the selected rows, as the state counts them.
Long FirstSelected(const QListWidget& list) {
  Long first = ListBox::noSelection;
  for (const QModelIndex& index : list.selectionModel()->selectedIndexes()) {
    first = first == ListBox::noSelection ? index.row() : std::min<Long>(first, index.row());
  }
  return first;
}

}  // namespace

QString ToQt(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) {
  return text.toStdString();
}

std::string FileFromQt(const QString& name) {
  return FromQt(QDir::toNativeSeparators(name));
}

void Follow(ControlState& state, QObject* owner, std::function<void()> show) {
  show();
  state.Bound = std::move(show);
  QObject::connect(owner, &QObject::destroyed, [&state] { state.Bound = nullptr; });
}

void ShowCommon(const ControlState& state, QWidget* widget) {
  widget->setEnabled(state.Enabled());
  // A widget that has no place yet must not be shown: it would become a window.
  if (!state.Visible()) {
    widget->hide();
  } else if (widget->testAttribute(Qt::WA_WState_ExplicitShowHide) && widget->isHidden() &&
             widget->parentWidget() != nullptr) {
    widget->show();
  }
}

void ShowColoured(const Label& state, QLabel* label) {
  label->setText(ToQt(state.Caption()));
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, state.ForeColor() == colorRed
                                             ? WarningColor(palette)
                                             : palette.color(QPalette::Text));
  label->setPalette(palette);
  ShowCommon(state, label);
}

void Bind(Label& state, QLabel* label) {
  Follow(state, label, [&state, label] {
    label->setText(ToQt(state.Caption()));
    ShowCommon(state, label);
  });
}

void Bind(TextBox& state, QLineEdit* edit) {
  Follow(state, edit, [&state, edit] {
    const QString text = ToQt(state.Text());
    // The cursor stays where it is while the user types.
    if (edit->text() != text) {
      edit->setText(text);
    }
    ShowBackground(state.BackColor(), edit);
    ShowCommon(state, edit);
  });
  QObject::connect(edit, &QLineEdit::textEdited, edit,
                   [&state](const QString& text) { state.SetText(FromQt(text)); });
}

void Bind(ComboBox& state, QComboBox* box) {
  Follow(state, box, [&state, box] { RefreshBox(state, box); });
  QObject::connect(box, &QComboBox::activated, box, [&state, box](int index) {
    state.Select(index);
    // A handler may have refused the choice.
    RefreshBox(state, box);
  });
  if (box->isEditable()) {
    // A typed 3 is meant as 3 and not as the entry 30 that begins with it.
    box->setCompleter(nullptr);
    QObject::connect(box->lineEdit(), &QLineEdit::editingFinished, box, [&state, box] {
      const std::string text = FromQt(box->currentText());
      if (text == state.Text()) {
        return;
      }
      state.SetText(text);
      if (state.ListIndex() == ComboBox::noSelection && state.Click) {
        state.Click();
      }
    });
  }
}

void Bind(CheckBox& state, QCheckBox* box) {
  Follow(state, box, [&state, box] {
    box->setChecked(state.Checked());
    ShowCommon(state, box);
  });
  QObject::connect(box, &QCheckBox::clicked, box,
                   [&state](bool checked) { state.SetChecked(checked); });
}

void Bind(OptionButton& state, QAbstractButton* button) {
  button->setCheckable(true);
  button->setAutoExclusive(false);
  const auto show = [&state, button] {
    button->setChecked(state.Value());
    ShowCommon(state, button);
  };
  Follow(state, button, show);
  QObject::connect(button, &QAbstractButton::clicked, button, [&state, show] {
    state.SetValue(true);
    show();
  });
}

void Bind(OptionGroup& group, Long number, QAbstractButton* button) {
  button->setCheckable(true);
  button->setAutoExclusive(false);
  const auto show = [&group, number, button] {
    button->setChecked(group[number].Value());
    ShowCommon(group[number], button);
  };
  Follow(group[number], button, show);
  QObject::connect(button, &QAbstractButton::clicked, button, [&group, number, show] {
    group.Select(number);
    show();
  });
}

void Bind(ListBox& state, QListWidget* list) {
  Follow(state, list, [&state, list] {
    const QSignalBlocker quiet(list);
    QStringList lines;
    for (const std::string& line : state.List()) {
      lines.append(ToQt(line));
    }
    // A list as it stands keeps its place while only the selection moves.
    bool same = list->count() == lines.size();
    for (int row = 0; same && row < list->count(); ++row) {
      same = list->item(row)->text() == lines[row];
    }
    if (!same) {
      list->clear();
      list->addItems(lines);
    }
    // More rows than the state knows of may be selected; they stay so.
    if (FirstSelected(*list) != state.ListIndex()) {
      list->setCurrentRow(state.ListIndex());
    }
    ShowCommon(state, list);
  });
  // The row with the focus is not yet a selected one.
  QObject::connect(list, &QListWidget::itemSelectionChanged, list,
                   [&state, list] { state.Select(FirstSelected(*list)); });
}

void Bind(Grid& state, QTableWidget* table) {
  Follow(state, table, [&state, table] {
    RefreshTable(state, table);
    ShowCommon(state, table);
  });
}

void Bind(MenuEntry& state, QAction* action) {
  Follow(state, action, [&state, action] {
    action->setEnabled(state.Enabled());
    action->setVisible(state.Visible());
    if (action->isCheckable()) {
      action->setChecked(state.Checked());
    }
  });
}

void Bind(TabControl& state, QTabWidget* tabs) {
  Follow(state, tabs, [&state, tabs] { tabs->setCurrentIndex(state.Tab()); });
  QObject::connect(tabs, &QTabWidget::currentChanged, tabs,
                   [&state](int tab) { state.SetTab(static_cast<Integer>(tab)); });
}

void Bind(Timer& state, QTimer* timer) {
  Follow(state, timer, [&state, timer] {
    if (state.Enabled() && state.Interval() > 0) {
      timer->start(state.Interval());
    } else {
      timer->stop();
    }
  });
}

}  // namespace trelonit
