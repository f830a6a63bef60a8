// The counters that supply every manufactured key. The protocol is read, use, and only then add one with a
// separate statement; nothing locks the row, and the primary key of the target table is the only guard
// between two users.
#pragma once

#include <string>
#include <string_view>

#include "base/database/connection.h"

namespace ovindra {

/// A counter with its statements, and the field that gives the value to use.
struct RunningNumber {
  Fragment read;
  std::string_view field;
  Fragment increment;
};

namespace running_number {

inline constexpr RunningNumber kEnrollNo{
    "select Control_Value from Running_Number where RNControl_Code='ENROLL_NO'", "Control_Value",
    "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='ENROLL_NO'"};
inline constexpr RunningNumber kChildRecordNo{
    "select Control_Value from Running_Number where RNControl_Code='CHILD_RECORDNO'", "Control_Value",
    "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='CHILD_RECORDNO'"};
inline constexpr RunningNumber kChildRecordNoOs{
    "select Control_Value from Running_Number where RNControl_Code='CHILD_RECORDNOOS'", "Control_Value",
    "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='CHILD_RECORDNOOS'"};

/// The coded ids are the counter's prefix and its value, joined by the server.
inline constexpr RunningNumber kSchoolId{
    "Select Control_String+convert(varchar(10),Control_Value) as SCode from Running_Number where "
    "RNControl_Code='SC_ID'",
    "SCode", "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='SC_ID'"};
inline constexpr RunningNumber kVisionCenterId{
    "Select Control_String+convert(varchar(10),Control_Value) as VCode from Running_Number where "
    "RNControl_Code='VC_ID'",
    "VCode", "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='VC_ID'"};
inline constexpr RunningNumber kAnganwadiCenterId{
    "Select Control_String+convert(varchar(10),Control_Value) as ACode from Running_Number where "
    "RNControl_Code='AW_ID'",
    "ACode", "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='AW_ID'"};

}  // namespace running_number

/// The value to use, trimmed. A missing counter is error 3021.
std::string Read(Connection& connection, const RunningNumber& counter);

/// Adds one to the counter.
void Increment(Connection& connection, const RunningNumber& counter);

}  // namespace ovindra
