// Tabs: the tab strip, which only says which tab is chosen, and the tab control, whose pages are frames of
// which the chosen one is visible.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/frame.h"

namespace ovindra {

class TabStrip : public Control {
 public:
  TabStrip(Container& container, std::string_view name, std::initializer_list<std::string_view> captions)
      : Control(container, name, ""), captions_(captions.begin(), captions.end()) {}

  const std::vector<std::string>& captions() const { return captions_; }
  int selected() const { return selected_; }
  const std::string& selected_caption() const { return captions_[static_cast<std::size_t>(selected_)]; }

  /// Chooses a tab and fires click; past the ends is error 380.
  virtual void Select(int tab);

  /// A person chooses a tab.
  void UserSelect(int tab);

  /// Where there is nothing to choose the Tab key passes by.
  bool IsTabStop() const override { return captions_.size() > 1; }

 protected:
  void DoClick() override {}

 private:
  std::vector<std::string> captions_;
  int selected_ = 0;
};

class TabControl : public TabStrip {
 public:
  using TabStrip::TabStrip;

  /// The pages in the order of the tabs; the first is shown.
  void SetPages(std::initializer_list<Frame*> pages);
  void Select(int tab) override;

 private:
  void ShowSelectedPage();

  std::vector<Frame*> pages_;
};

}  // namespace ovindra
