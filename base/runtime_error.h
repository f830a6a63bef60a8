// The one kind of run-time error: a number and a text, both shown to the user. Errors are made by the named
// functions below and in base/database/database_error.h, so that each text stands in one place.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace ovindra {

/// A run-time error. Thrown where an operation fails, shown by the error tail of a guarded handler, and the
/// end of the program where no handler is guarded.
class RuntimeError : public std::exception {
 public:
  RuntimeError(long number, std::string text) : number_(number), text_(std::move(text)) {}

  long number() const { return number_; }
  const std::string& text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  long number_;
  std::string text_;
};

RuntimeError InvalidProcedureCall();
RuntimeError Overflow();
RuntimeError DivisionByZero();
RuntimeError TypeMismatch();
RuntimeError FileNotFound();
RuntimeError PathFileAccess();
RuntimeError ObjectNotSet();
RuntimeError InvalidUseOfNull();
RuntimeError InvalidPropertyValue();
RuntimeError TextPropertyIsReadOnly();
RuntimeError CannotCreateObject();
RuntimeError PrinterError();
RuntimeError CannotRemoveLastRow();

}  // namespace ovindra
