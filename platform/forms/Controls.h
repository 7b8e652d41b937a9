#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/forms/Resources.h"
#include "platform/values/BoundedArray.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// A colour as the forms know it: red, green and blue in one number, or a colour of the desktop.
using Color = std::uint32_t;

constexpr Color colorBlack = 0x000000;
/// The bit of the colours that the system names by number instead of giving red, green and blue.
constexpr Color systemColor = 0x80000000;
constexpr Color colorRed = 0x0000FF;
constexpr Color colorDisabledGrey = 0xC0C0C0;
constexpr Color colorWindowBackground = 0x80000005;
constexpr Color colorWindowText = 0x80000008;

/// What every control has. A setter that changes something calls Bound, by which a window keeps
/// its widget in step; the events of the user (Click, Change) are members of the controls.
class ControlState {
 public:
  ControlState() = default;
  ControlState(const ControlState&) = delete;
  ControlState& operator=(const ControlState&) = delete;
  ControlState(ControlState&&) = default;
  ControlState& operator=(ControlState&&) = default;
  ~ControlState() = default;

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Assign(visible_, visible); }

  std::function<void()> Bound;
  /// Called after Bound, for whoever must know that something has changed.
  std::function<void()> Watch;

 protected:
  template <class T>
  bool Assign(T& field, T value) {
    if (field == value) {
      return false;
    }
    field = std::move(value);
    Updated();
    return true;
  }
  void Updated() {
    if (Bound) {
      Bound();
    }
    if (Watch) {
      Watch();
    }
  }
  static void Raise(const std::function<void()>& event) {
    if (event) {
      event();
    }
  }

 private:
  bool enabled_ = true;
  bool visible_ = true;
};

/// A label, a frame, a status bar panel or a form's title bar.
class Label : public ControlState {
 public:
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }
  Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color color) { Assign(foreColor_, color); }

 private:
  std::string caption_;
  Color foreColor_ = colorWindowText;
};

/// A line of a menu, with the tool button that stands for it where there is one.
class MenuEntry : public ControlState {
 public:
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }
  /// The mark in front of it. Choosing the entry does not set it; that is the handler's rule.
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { Assign(checked_, checked); }

 private:
  std::string caption_;
  bool checked_ = false;
};

/// A text box. Another text raises Change.
class TextBox : public ControlState {
 public:
  const std::string& Text() const { return text_; }
  void SetText(std::string text) {
    if (Assign(text_, std::move(text))) {
      Raise(Change);
    }
  }
  Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Assign(backColor_, color); }

  std::function<void()> Change;

 private:
  std::string text_;
  Color backColor_ = colorWindowBackground;
};

/// A box with a list under it. Another selection raises Click, whether the user or the code made
/// it; a typed text that is no entry selects nothing and raises nothing.
class ComboBox : public ControlState {
 public:
  static constexpr Long noSelection = -1;

  const std::vector<std::string>& List() const { return list_; }
  void AddItem(std::string item);
  /// Empties list, selection and text; raises nothing.
  void Clear();

  Long ListIndex() const { return listIndex_; }
  /// Raises 9 for an index outside the list.
  void Select(Long index);

  const std::string& Text() const { return text_; }
  /// Selects the entry with this text (the present one if that has it, else the first); without
  /// such an entry the text stands alone.
  void SetText(const std::string& text);

  Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Assign(backColor_, color); }

  std::function<void()> Click;

 private:
  std::vector<std::string> list_;
  Long listIndex_ = noSelection;
  std::string text_;
  Color backColor_ = colorWindowBackground;
};

/// A list of lines, of which one may be selected.
class ListBox : public ControlState {
 public:
  static constexpr Long noSelection = -1;

  const std::vector<std::string>& List() const { return list_; }
  /// Selects nothing.
  void SetList(std::vector<std::string> list);

  Long ListIndex() const { return listIndex_; }
  /// Raises 9 for an index outside the list; noSelection selects nothing.
  void Select(Long index);

 private:
  std::vector<std::string> list_;
  Long listIndex_ = noSelection;
};

/// A grid of texts with a head row.
class Grid : public ControlState {
 public:
  using Row = std::vector<std::string>;
  const std::vector<Row>& Rows() const { return rows_; }
  void SetRows(std::vector<Row> rows) { Assign(rows_, std::move(rows)); }

 private:
  std::vector<Row> rows_;
};

/// A check box. Another value raises Click.
class CheckBox : public ControlState {
 public:
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) {
    if (Assign(checked_, checked)) {
      Raise(Click);
    }
  }

  std::function<void()> Click;

 private:
  bool checked_ = false;
};

/// One option, or a toggle button. Becoming set raises Click. That another one is cleared by it is
/// the rule of its group (see OptionGroup) or of the form.
class OptionButton : public ControlState {
 public:
  bool Value() const { return value_; }
  void SetValue(bool value) {
    if (Assign(value_, value) && value) {
      Raise(Click);
    }
  }

  std::function<void()> Click;

 private:
  bool value_ = false;
};

/// Options numbered from 1 of which at most one is set.
class OptionGroup {
 public:
  explicit OptionGroup(Long count) : options_(1, count) {}

  /// Raises 9 for a number without an option.
  OptionButton& operator[](Long number) { return options_[number]; }
  const OptionButton& operator[](Long number) const { return options_[number]; }

  /// Number of the set option, 0 for none.
  Integer Selected() const;
  /// Clears the others and sets this one, which raises its Click if it was not set.
  void Select(Long number);
  void ClearAll();

  auto begin() { return options_.begin(); }
  auto end() { return options_.end(); }

 private:
  BoundedArray<OptionButton> options_;
};

/// A picture, which may be marked as the chosen one of its row.
class Image : public ControlState {
 public:
  Picture Shown() const { return picture_; }
  void Show(Picture picture) { Assign(picture_, picture); }
  bool Marked() const { return marked_; }
  void SetMarked(bool marked) { Assign(marked_, marked); }

 private:
  Picture picture_;
  bool marked_ = false;
};

/// A line of a drawing.
class Line : public ControlState {
 public:
  Color BorderColor() const { return borderColor_; }
  void SetBorderColor(Color color) { Assign(borderColor_, color); }

 private:
  Color borderColor_ = colorBlack;
};

class Timer : public ControlState {
 public:
  /// Milliseconds; a timer with interval 0 never ticks.
  int Interval() const { return interval_; }
  void SetInterval(int milliseconds) { Assign(interval_, milliseconds); }

 private:
  int interval_ = 0;
};

/// The tabs of a form. Another tab raises Click with the number of the tab left.
class TabControl : public ControlState {
 public:
  Integer Tab() const { return tab_; }
  void SetTab(Integer tab);

  std::function<void(Integer previous)> Click;

 private:
  Integer tab_ = 0;
};

}  // namespace trelonit
