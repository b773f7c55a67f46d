/// The portal's print interface on the session bus.
#ifndef IMAGEPOSITION_PORTAL_PORTALSERVICE_HPP
#define IMAGEPOSITION_PORTAL_PORTALSERVICE_HPP

#include "PrintRequest.hpp"

#include <map>
#include <memory>
#include <string>

namespace imageposition {

/// Serves org.freedesktop.impl.portal.Print. Main thread.
class PortalService {
public:
  static constexpr const char *kName = "org.freedesktop.impl.portal.desktop.print_dialog";

  /// Stores prepared jobs in `folder`, which only the user can access. Calls `changed` when a
  /// request starts or ends. Throws a `std::runtime_error`.
  PortalService(GDBusConnection *connection, std::string folder, std::function<void()> changed);
  ~PortalService();
  PortalService(const PortalService &) = delete;
  PortalService &operator=(const PortalService &) = delete;

  /// Whether there are no requests, and no jobs that an application may still send.
  bool isIdle();

private:
  struct OpenRequest {
    std::unique_ptr<PrintRequest> request;
    guint object = 0; // its registration on the bus
  };

  static void called(GDBusConnection *connection, const gchar *sender, const gchar *path,
                     const gchar *interface, const gchar *method, GVariant *parameters,
                     GDBusMethodInvocation *invocation, gpointer self);
  static void closed(GDBusConnection *connection, const gchar *sender, const gchar *path,
                     const gchar *interface, const gchar *method, GVariant *parameters,
                     GDBusMethodInvocation *invocation, gpointer self);
  void preparePrint(GVariant *parameters, GDBusMethodInvocation *invocation);
  void print(GVariant *parameters, GDBusMethodInvocation *invocation);
  RequestOwner ownerOf(GDBusMethodInvocation *invocation, const std::string &handle);
  void open(const std::string &handle, std::unique_ptr<PrintRequest> request);
  std::unique_ptr<PreparedFile> newFile() const;

  ObjectHandle<GDBusConnection> connection_;
  std::string folder_;
  std::function<void()> changed_;
  Tokens tokens_;
  guint object_ = 0;
  std::map<std::string, OpenRequest> requests_; // by handle
};

} // namespace imageposition

#endif
