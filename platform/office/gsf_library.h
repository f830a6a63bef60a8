// What every use of libgsf needs: its start and the end of its objects.
#pragma once

#include <memory>

#include <gsf/gsf-utils.h>

namespace ovindra::office {

/// Must have been called before anything else of the library.
inline void StartGsf() {
  static const bool started = (gsf_init(), true);
  static_cast<void>(started);
}

struct GObjectReleaser {
  void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object>
using GObjectHandle = std::unique_ptr<Object, GObjectReleaser>;

}  // namespace ovindra::office
