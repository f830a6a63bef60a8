// The program on the large database, with one form open.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/forms.h"
#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/tabs.h"
#include "bench/large_database.h"
#include "core/startup/program.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra::bench {

class Desk {
 public:
  explicit Desk(std::string_view form_name, int children = kMillion)
      : form_name_(form_name), source_(children), program_(machine_.services, source_, AllForms()) {
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
    program_.Perform([&] { combo.SetListIndex(combo.items().IndexOf(entry).value()); });
    RefuseMessages();
  }

  void SelectTab(int tab) {
    program_.Perform([&] { Find<TabStrip>("TabStrip1").Select(tab); });
  }

  void SwitchOn(std::string_view option) {
    program_.Perform([&] { Find<OptionButton>(option).SetOn(true); });
  }

  void SetPeriod(Date from, Date to) {
    Find<DatePicker>("DTPicker1").SetValue(from);
    Find<DatePicker>("DTPicker2").SetValue(to);
  }

  /// Clicks; the one box that may come up reads so.
  void Click(std::string_view name, std::string_view message = {}) {
    program_.Perform([&] { form().Find(name)->UserClick(); });
    Accept(message);
  }

  /// Presses a button that a person may not see.
  void Press(std::string_view name, std::string_view message = {}) {
    program_.Perform([&] { Find<Button>(name).Press(); });
    Accept(message);
  }

  /// The screening statements that the program has sent since it was last asked.
  std::vector<std::string> TakeStatements() { return std::exchange(source_.statements, {}); }
  /// The same of the hospital records.
  std::vector<std::string> TakeHospitalStatements() { return std::exchange(source_.hospital_statements, {}); }

 private:
  class LargeSource : public DataSources {
   public:
    explicit LargeSource(int children) : children_(children) {}

    std::unique_ptr<Session> Connect(std::string_view connection) override {
      if (connection.find("ward") != std::string_view::npos)
        return std::make_unique<ListenedSession>(OpenLargeHospital(children_), hospital_statements);
      return std::make_unique<ListenedSession>(OpenLarge(children_), statements);
    }

    std::vector<std::string> statements;
    std::vector<std::string> hospital_statements;

   private:
    int children_;
  };

  class ListenedSession : public Session {
   public:
    ListenedSession(std::unique_ptr<Session> session, std::vector<std::string>& statements)
        : session_(std::move(session)), statements_(statements) {}

    Recordset Run(const SqlText& statement) override {
      statements_.push_back(statement.text());
      return session_->Run(statement);
    }

   private:
    std::unique_ptr<Session> session_;
    std::vector<std::string>& statements_;
  };

  void Accept(std::string_view message) {
    if (!message.empty() && machine_.messages == std::vector<std::string>{std::string(message)})
      machine_.messages.clear();
    RefuseMessages();
  }

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
