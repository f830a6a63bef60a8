#include "platform/embedded/session/statement_cache.h"

#include <algorithm>

#include "platform/embedded/like_pattern.h"
#include "platform/embedded/parser/parser.h"

namespace ovindra::embedded {
namespace {

// The first character tells the kinds of keys apart; what stands for a parameter can't stand in the program's
// text.
constexpr char kCut = 'C';
constexpr char kWhole = 'W';
constexpr char kTextMark = '\x01';
constexpr char kNumberMark = '\x02';

}  // namespace

PreparedStatement* StatementCache::Find(std::string_view key) {
  const auto found = by_key_.find(key);
  if (found == by_key_.end()) return nullptr;
  entries_.splice(entries_.begin(), entries_, found->second);
  return &found->second->statement;
}

PreparedStatement& StatementCache::Add(std::string_view key, PreparedStatement statement) {
  if (entries_.size() >= kMostStatements) {
    by_key_.erase(entries_.back().key);
    entries_.pop_back();
  }
  entries_.push_front({std::string(key), std::move(statement)});
  by_key_.insert_or_assign(entries_.front().key, entries_.begin());
  return entries_.front().statement;
}

void StatementCache::Clear() {
  by_key_.clear();
  entries_.clear();
}

std::string_view StatementKey::WithoutValues(const SqlText& statement) {
  if (statement.values().empty()) return WithValues(statement);
  const std::string_view text = statement.text();
  key_.assign(1, kCut);
  std::size_t at = 0;
  for (const ValuePlace& place : statement.values()) {
    if (!IsParameter(place, text)) continue;
    key_ += text.substr(at, place.offset - at);
    if (place.is_quoted) {
      key_ += kTextMark;
      key_ += static_cast<char>('0' + static_cast<int>(ShapeOf(text.substr(place.offset, place.length))));
    } else {
      key_ += kNumberMark;
    }
    at = place.offset + place.length;
  }
  key_ += text.substr(at);
  return key_;
}

std::string_view StatementKey::WithValues(const SqlText& statement) {
  key_.assign(1, kWhole);
  key_ += statement.text();
  return key_;
}

std::size_t ParameterCount(const SqlText& statement) {
  return static_cast<std::size_t>(
      std::count_if(statement.values().begin(), statement.values().end(),
                    [&](const ValuePlace& place) { return IsParameter(place, statement.text()); }));
}

}  // namespace ovindra::embedded
