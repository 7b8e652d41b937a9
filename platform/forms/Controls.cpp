#include "platform/forms/Controls.h"

#include <algorithm>
namespace trelonit {

void ComboBox::AddItem(std::string item) {
  list_.push_back(std::move(item));
  Updated();
}

void ComboBox::Clear() {
  list_.clear();
  listIndex_ = noSelection;
  text_.clear();
  Updated();
}

void ComboBox::Select(Long index) {
  if (index < 0 || static_cast<std::size_t>(index) >= list_.size()) {
    RaiseSubscriptOutOfRange();
  }
  const bool another = index != listIndex_;
  listIndex_ = index;
  text_ = list_[static_cast<std::size_t>(index)];
  Updated();
  if (another) {
    Raise(Click);
  }
}

void ComboBox::SetText(const std::string& text) {
  if (listIndex_ != noSelection && list_[static_cast<std::size_t>(listIndex_)] == text) {
    Assign(text_, text);
    return;
  }
  const auto found = std::find(list_.begin(), list_.end(), text);
  if (found != list_.end()) {
    Select(static_cast<Long>(found - list_.begin()));
    return;
  }
  listIndex_ = noSelection;
  text_ = text;
  Updated();
}

void ListBox::SetList(std::vector<std::string> list) {
  if (list_ == list) {
    Assign(listIndex_, noSelection);
    return;
  }
  listIndex_ = noSelection;
  list_ = std::move(list);
  Updated();
}

void ListBox::Select(Long index) {
  if (index < noSelection || index >= static_cast<Long>(list_.size())) {
    RaiseSubscriptOutOfRange();
  }
  Assign(listIndex_, index);
}

Integer OptionGroup::Selected() const {
  for (Long number = options_.LowerBound(); number <= options_.UpperBound(); ++number) {
    if (options_[number].Value()) {
      return static_cast<Integer>(number);
    }
  }
  return 0;
}

void OptionGroup::Select(Long number) {
  OptionButton& chosen = options_[number];
  for (OptionButton& option : options_) {
    if (&option != &chosen) {
      option.SetValue(false);
    }
  }
  chosen.SetValue(true);
}

void OptionGroup::ClearAll() {
  for (OptionButton& option : options_) {
    option.SetValue(false);
  }
}

void TabControl::SetTab(Integer tab) {
  const Integer previous = tab_;
  if (Assign(tab_, tab) && Click) {
    Click(previous);
  }
}

}  // namespace trelonit
