#include "base/controls/tabs.h"

#include "base/runtime_error.h"

namespace ovindra {

void TabStrip::Select(int tab) {
  if (tab < 0 || tab >= static_cast<int>(captions_.size())) throw InvalidPropertyValue();
  selected_ = tab;
  Changed(Aspect::kChoice);
  click.Fire();
}

void TabStrip::UserSelect(int tab) {
  if (CanAct() && form().UserFocus(*this)) Select(tab);
}

void TabControl::SetPages(std::initializer_list<Frame*> pages) {
  pages_.assign(pages);
  ShowSelectedPage();
}

void TabControl::Select(int tab) {
  TabStrip::Select(tab);
  ShowSelectedPage();
}

void TabControl::ShowSelectedPage() {
  for (std::size_t i = 0; i < pages_.size(); ++i) pages_[i]->SetVisible(static_cast<int>(i) == selected());
}

}  // namespace ovindra
