// An event of a control: one handler at most, called with the event's arguments, none being as good as an
// empty one.
#pragma once

#include <functional>
#include <utility>

namespace ovindra {

template <typename... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  void Handle(Handler handler) { handler_ = std::move(handler); }

  /// The handler runs from a copy, so that it may close its own form.
  void Fire(Args... args) const {
    if (const Handler handler = handler_) handler(args...);
  }

 private:
  Handler handler_;
};

}  // namespace ovindra
