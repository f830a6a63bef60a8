// The program on the large database, with one form open.
#pragma once

#include <stdexcept>
#include <string_view>

#include "app/forms.h"
#include "base/controls/combo_box.h"
#include "bench/large_database.h"
#include "core/startup/program.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra::bench {

class Desk {
 public:
  explicit Desk(std::string_view form_name)
      : form_name_(form_name), program_(machine_.services, source_, AllForms()) {
    program_.module().ScreeningConnection.Open(source_, "DSN=ZQR;");
    program_.module().HospitalConnection.Open(source_, "DSN=ward;");
    program_.module().CurrentUserName = "ADMIN";
    program_.Perform([this] { program_.Show(form_name_); });
  }

  Form& form() { return *program_.OpenForm(form_name_); }

  template <typename Kind>
  Kind& Find(std::string_view name) {
    return dynamic_cast<Kind&>(*form().Find(name));
  }

  void Pick(std::string_view list, std::string_view entry) {
    auto& combo = Find<ComboBox>(list);
    program_.Perform([&] { combo.SetListIndex(*combo.items().IndexOf(entry)); });
    RefuseMessages();
  }

  /// Clicks; the one box that may come up reads so.
  void Click(std::string_view name, std::string_view message = {}) {
    program_.Perform([&] { form().Find(name)->UserClick(); });
    if (!message.empty() && machine_.messages == std::vector<std::string>{std::string(message)})
      machine_.messages.clear();
    RefuseMessages();
  }

 private:
  class LargeSource : public DataSources {
   public:
    std::unique_ptr<Session> Connect(std::string_view connection) override {
      return connection.find("ward") == std::string_view::npos ? OpenLarge() : OpenLargeHospital();
    }
  };

  /// A benchmark whose form complains measures nothing.
  void RefuseMessages() {
    if (!machine_.messages.empty()) throw std::runtime_error(machine_.messages.front());
    if (program_.has_ended()) throw std::runtime_error("the program has ended");
  }

  std::string_view form_name_;
  QuietMachine machine_;
  LargeSource source_;
  Program program_;
};

}  // namespace ovindra::bench
