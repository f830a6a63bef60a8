#include "base/runtime_error.h"

namespace ovindra {

RuntimeError InvalidProcedureCall() {
  return {5, "Invalid procedure call or argument"};
}
RuntimeError Overflow() {
  return {6, "Overflow"};
}
RuntimeError DivisionByZero() {
  return {11, "Division by zero"};
}
RuntimeError TypeMismatch() {
  return {13, "Type mismatch"};
}
RuntimeError FileNotFound() {
  return {53, "File not found"};
}
RuntimeError PathFileAccess() {
  return {75, "Path/File access error"};
}
RuntimeError ObjectNotSet() {
  return {91, "Object variable or With block variable not set"};
}
RuntimeError InvalidUseOfNull() {
  return {94, "Invalid use of Null"};
}
RuntimeError InvalidPropertyValue() {
  return {380, "Invalid property value"};
}
RuntimeError TextPropertyIsReadOnly() {
  return {383, "'Text' property is read-only"};
}
RuntimeError CannotCreateObject() {
  return {429, "ActiveX component can't create object"};
}
RuntimeError PrinterError() {
  return {482, "Printer error"};
}
RuntimeError CannotRemoveLastRow() {
  return {30015, "Cannot remove last non-fixed row"};
}

}  // namespace ovindra
