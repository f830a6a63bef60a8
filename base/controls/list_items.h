// The entries of a combo box or a list: their texts, a number beside each, and which one is the current.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovindra {

class ListItems {
 public:
  struct Item {
    std::string text;
    long data = 0;
  };

  static constexpr int kNone = -1;

  std::size_t size() const { return items_.size(); }
  int count() const { return static_cast<int>(items_.size()); }
  const std::vector<Item>& all() const { return items_; }
  int current() const { return current_; }

  /// The text of an entry; an index past the ends is error 380.
  const std::string& Text(int index) const { return At(index).text; }
  const Item& At(int index) const;

  void Add(std::string_view text, long data = 0) { items_.push_back({std::string(text), data}); }
  /// Removing at or before the current entry leaves no current one or moves it up; past the ends is error 5.
  void Remove(int index);
  void Clear();
  void SetData(int index, long data);
  /// Makes an entry the current one, or none with kNone; past the ends is error 380.
  void SetCurrent(int index);

  /// The first entry that reads letter for letter so.
  std::optional<int> IndexOf(std::string_view text) const;

 private:
  std::vector<Item> items_;
  int current_ = kNone;
};

}  // namespace ovindra
