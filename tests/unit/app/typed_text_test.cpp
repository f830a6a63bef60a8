// Whatever is typed into any box of any form, a statement keeps its shape: every box is filled with texts
// that would be SQL, every button is pressed, and no statement reaches a database that harmless texts did not
// send.
#include <gtest/gtest.h>

#include "app/forms.h"
#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/list_box.h"
#include "base/controls/text_box.h"
#include "base/text/utf8.h"
#include "tests/unit/app/watched_databases.h"
#include "tools/driver/controls/controls_player.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {
namespace {

/// Answers every question with Yes.
class YesSayer : public ControlsPlayer {
 public:
  SeenMessage ShowMessage(const Message& message, Answer) override {
    return {message, message.buttons == MessageButtons::kYesNo ? Answer::kYes : Answer::kOk};
  }
};

bool CanBeTypedInto(const Control& control) {
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control))
    return combo->style() == ComboStyle::kDropDownCombo;
  return dynamic_cast<const TextBox*>(&control) != nullptr;
}

/// One form and who tries a text in its boxes.
class Visitor {
 public:
  Visitor(std::string_view form, Watch& watch) : form_(form), watch_(watch) {
    BringUp();
    for (const Control* control : OpenForm()->controls())
      if (CanBeTypedInto(*control)) boxes_.push_back(control->full_name());
  }

  std::size_t boxes() const { return boxes_.size(); }

  /// The text in one box after the other, harmless ones in the rest, and then every button.
  void Try(const std::string& typed) {
    watch_.typed = typed;
    for (const std::string& box : boxes_) {
      BeginEntry();
      for (const std::string& button : Names<Button>()) PressWith(button, box, typed);
    }
  }

 private:
  static constexpr std::string_view kHarmless = "7";

  void BringUp() {
    if (world_ == nullptr || world_->program().has_ended()) {
      world_.reset();
      world_ = std::make_unique<World>(AllForms(), WatchedDatabases(watch_), player_, trace_);
      world_->SignIn("ADMIN");
    }
    if (OpenForm() == nullptr) world_->Open(form_);
  }

  /// The form as far as may be ready for a new entry.
  void BeginEntry() {
    BringUp();
    for (const std::string& button : Names<Button>()) {
      const std::string& caption = Find(button)->caption();
      if (caption == "&Add" || caption == "Add") Click(button);
    }
    // Many a list is filled by the pick of another.
    for (int round = 0; round < 2; ++round)
      for (const std::string& list : Names<ComboBox>()) PickFirst(list);
  }

  void PickFirst(const std::string& list) {
    const auto* combo = dynamic_cast<const ComboBox*>(Find(list));
    if (combo == nullptr || combo->items().count() == 0) return;
    Act(list, [&](const ControlName& name) { player_.Pick(name, combo->items().Text(0)); });
  }

  void Click(const std::string& button) {
    Act(button, [&](const ControlName& name) { player_.Click(name); });
  }

  void PressWith(const std::string& button, const std::string& box, const std::string& typed) {
    if (OpenForm() == nullptr) BeginEntry();
    for (const std::string& other : boxes_) {
      if (other != box) Fill(other, std::string(kHarmless));
      TakeFromLists();
    }
    Fill(box, typed);
    Act(box, [&](const ControlName& name) { player_.Press(name, {KeyName::kEnter}); });
    Click(button);
  }

  /// A list that has come up below a box gives it its first entry.
  void TakeFromLists() {
    for (const std::string& name : Names<ListBox>()) {
      const auto* list = dynamic_cast<const ListBox*>(Find(name));
      if (list->items().count() == 0) continue;
      Act(name, [&](const ControlName& place) { player_.Pick(place, list->items().Text(0)); });
    }
  }

  /// As the clipboard brings it: past the key filters.
  void Fill(const std::string& box, const std::string& text) {
    Act(box, [&](const ControlName& name) {
      player_.Clear(name);
      player_.Paste(name, text);
    });
  }

  /// Does something with a control that a person can act on now.
  template <typename What>
  void Act(const std::string& control, What what) {
    const Control* found = Find(control);
    if (found != nullptr && found->CanAct()) what(ControlName{std::string(form_), control});
  }

  template <typename Kind>
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    if (OpenForm() == nullptr) return names;
    for (const Control* control : OpenForm()->controls())
      if (dynamic_cast<const Kind*>(control) != nullptr) names.push_back(control->full_name());
    return names;
  }

  Form* OpenForm() { return world_->FindForm(form_); }
  Control* Find(const std::string& control) { return world_->Find({std::string(form_), control}); }

  std::string_view form_;
  Watch& watch_;
  YesSayer player_;
  Trace trace_;
  std::vector<std::string> boxes_;
  std::unique_ptr<World> world_;
};

std::string Many(std::string_view text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

const std::vector<std::string>& HarmlessTexts() {
  static const std::vector<std::string> texts = {"abc", "5", "5.5", "", "MOTIPUR", "9876543210"};
  return texts;
}

const std::vector<std::string>& HostileTexts() {
  static const std::vector<std::string> texts = {
      "';drop table Enroll_Master;--",
      "' or '1'='1",
      "''x",
      "1;delete from User_Master",
      "1 or 1=1",
      "0--",
      "0/*",
      "*/ union select Password from User_Master /*",
      "0)",
      "[User_Master]",
      "\"",
      "%",
      "\r\nGO\r\ndrop table User_Master\r\nGO\r\n",
      // quotation marks of other alphabets, one that is made of two, letters that run the other way
      "\xCA\xBC\xE2\x80\x99\xEF\xBC\x87; drop table User_Master",
      "e\xCC\x81\xE2\x80\xAE\xF0\x9F\x91\x93\xE0\xA4\xB6",
      Many("long ", 2000),
      Many("9", 4000),
  };
  return texts;
}

/// Tries the texts on every form; how many inputs that were.
long TryAll(
    const std::vector<std::string>& texts, Watch& watch,
    const std::function<void(const std::string&)>& look = [](const std::string&) {}) {
  long inputs = 0;
  for (const FormEntry& form : AllForms()) {
    Visitor visitor(form.name, watch);
    const auto boxes = static_cast<long>(visitor.boxes());
    for (const std::string& text : boxes == 0 ? std::vector<std::string>() : texts) {
      SCOPED_TRACE(std::string(form.name) + ": " + std::string(FirstCharacters(text, 60)));
      visitor.Try(text);
      look(text);
      inputs += boxes;
    }
  }
  return inputs;
}

TEST(TypedText, NeverChangesTheShapeOfAStatement) {
  Watch harmless;
  TryAll(HarmlessTexts(), harmless);
  EXPECT_GT(harmless.shapes.size(), 100U);
  Watch hostile;
  const long inputs = TryAll(HostileTexts(), hostile, [&](const std::string& text) {
    for (const std::string& shape : hostile.shapes) EXPECT_TRUE(harmless.shapes.contains(shape)) << shape;
    for (const std::string& shape : hostile.refused) EXPECT_TRUE(harmless.refused.contains(shape)) << shape;
    if (text.find('\'') != std::string::npos) {
      EXPECT_EQ(hostile.with_typed, 0);
    }
    hostile.shapes.clear();
    hostile.refused.clear();
    hostile.with_typed = 0;
  });
  EXPECT_GT(inputs, 1000);
  std::cout << "security: " << inputs << " inputs in text boxes, " << hostile.statements
            << " statements, each of one of " << harmless.shapes.size() << " harmless shapes\n";
}

}  // namespace
}  // namespace ovindra::driver
