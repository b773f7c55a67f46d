/// Smart pointers to GLib objects.
#ifndef IMAGEPOSITION_PORTAL_GLIBHANDLES_HPP
#define IMAGEPOSITION_PORTAL_GLIBHANDLES_HPP

#include <gio/gio.h>

#include <memory>

namespace imageposition {

struct UnrefObject {
  void operator()(gpointer object) const noexcept { g_object_unref(object); }
};
template <typename Object> using ObjectHandle = std::unique_ptr<Object, UnrefObject>;

struct UnrefVariant {
  void operator()(GVariant *variant) const noexcept { g_variant_unref(variant); }
};
using VariantHandle = std::unique_ptr<GVariant, UnrefVariant>;

struct FreeError {
  void operator()(GError *error) const noexcept { g_error_free(error); }
};
using ErrorHandle = std::unique_ptr<GError, FreeError>;

} // namespace imageposition

#endif
