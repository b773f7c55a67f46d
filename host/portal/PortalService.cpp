#include "PortalService.hpp"

#include "Dictionaries.hpp"

#include <gio/gunixfdlist.h>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace imageposition {

namespace {

constexpr const char *kPath = "/org/freedesktop/portal/desktop";
constexpr const char *kPrint = "org.freedesktop.impl.portal.Print";
constexpr const char *kRequest = "org.freedesktop.impl.portal.Request";

constexpr const char *kInterfaces = "<node>"
                                    " <interface name='org.freedesktop.impl.portal.Print'>"
                                    "  <method name='PreparePrint'>"
                                    "   <arg type='o' name='handle' direction='in'/>"
                                    "   <arg type='s' name='app_id' direction='in'/>"
                                    "   <arg type='s' name='parent_window' direction='in'/>"
                                    "   <arg type='s' name='title' direction='in'/>"
                                    "   <arg type='a{sv}' name='settings' direction='in'/>"
                                    "   <arg type='a{sv}' name='page_setup' direction='in'/>"
                                    "   <arg type='a{sv}' name='options' direction='in'/>"
                                    "   <arg type='u' name='response' direction='out'/>"
                                    "   <arg type='a{sv}' name='results' direction='out'/>"
                                    "  </method>"
                                    "  <method name='Print'>"
                                    "   <arg type='o' name='handle' direction='in'/>"
                                    "   <arg type='s' name='app_id' direction='in'/>"
                                    "   <arg type='s' name='parent_window' direction='in'/>"
                                    "   <arg type='s' name='title' direction='in'/>"
                                    "   <arg type='h' name='fd' direction='in'/>"
                                    "   <arg type='a{sv}' name='options' direction='in'/>"
                                    "   <arg type='u' name='response' direction='out'/>"
                                    "   <arg type='a{sv}' name='results' direction='out'/>"
                                    "  </method>"
                                    " </interface>"
                                    " <interface name='org.freedesktop.impl.portal.Request'>"
                                    "  <method name='Close'/>"
                                    " </interface>"
                                    "</node>";

GDBusInterfaceInfo *interfaceInfo(const char *name) {
  static GDBusNodeInfo *const info = g_dbus_node_info_new_for_xml(kInterfaces, nullptr);
  return g_dbus_node_info_lookup_interface(info, name);
}

/// Throws a `std::runtime_error`.
guint registerObject(GDBusConnection *connection, const std::string &path, const char *interface,
                     const GDBusInterfaceVTable &functions, gpointer data) {
  GError *error = nullptr;
  const guint object = g_dbus_connection_register_object(
      connection, path.c_str(), interfaceInfo(interface), &functions, data, nullptr, &error);
  if (object == 0)
    throw std::runtime_error(ErrorHandle(error)->message);
  return object;
}

/// The descriptor that came with the call; not open if there is none.
Descriptor descriptorIn(GDBusMethodInvocation *invocation, gint32 index) {
  GDBusMessage *const message = g_dbus_method_invocation_get_message(invocation);
  GUnixFDList *const list = g_dbus_message_get_unix_fd_list(message);
  const bool isThere = list != nullptr && index >= 0 && index < g_unix_fd_list_get_length(list);
  return Descriptor(isThere ? g_unix_fd_list_get(list, index, nullptr) : -1);
}

} // namespace

PortalService::PortalService(GDBusConnection *connection, std::string folder,
                             std::function<void()> changed)
    : connection_(G_DBUS_CONNECTION(g_object_ref(connection))), folder_(std::move(folder)),
      changed_(std::move(changed)) {
  static constexpr GDBusInterfaceVTable kFunctions{called, nullptr, nullptr, {}};
  object_ = registerObject(connection, kPath, kPrint, kFunctions, this);
}

PortalService::~PortalService() {
  g_dbus_connection_unregister_object(connection_.get(), object_);
  for (const auto &[handle, open] : requests_)
    g_dbus_connection_unregister_object(connection_.get(), open.object);
}

bool PortalService::isIdle() {
  tokens_.expire();
  return requests_.empty() && tokens_.isEmpty();
}

void PortalService::called(GDBusConnection *, const gchar *, const gchar *, const gchar *,
                           const gchar *method, GVariant *parameters,
                           GDBusMethodInvocation *invocation, gpointer self) {
  auto *const service = static_cast<PortalService *>(self);
  try {
    if (std::string_view(method) == "PreparePrint")
      service->preparePrint(parameters, invocation);
    else
      service->print(parameters, invocation);
  } catch (const std::exception &failure) {
    std::cerr << "print-dialog-portal: " << failure.what() << std::endl;
    g_dbus_method_invocation_return_error_literal(invocation, G_DBUS_ERROR, G_DBUS_ERROR_FAILED,
                                                  failure.what());
  }
}

void PortalService::preparePrint(GVariant *parameters, GDBusMethodInvocation *invocation) {
  const char *handle = nullptr, *application = nullptr, *parent = nullptr, *title = nullptr;
  GVariant *settings = nullptr, *page = nullptr;
  g_variant_get(parameters, "(&o&s&s&s@a{sv}@a{sv}@a{sv})", &handle, &application, &parent, &title,
                &settings, &page, nullptr);
  const VariantHandle ownSettings(settings), ownPage(page);
  open(handle, std::make_unique<PreparationRequest>(Caller{application, parent, title},
                                                    readJob(settings, page), newFile(), tokens_,
                                                    ownerOf(invocation, handle)));
}

void PortalService::print(GVariant *parameters, GDBusMethodInvocation *invocation) {
  const char *handle = nullptr, *application = nullptr, *parent = nullptr, *title = nullptr;
  gint32 index = -1;
  GVariant *options = nullptr;
  g_variant_get(parameters, "(&o&s&s&sh@a{sv})", &handle, &application, &parent, &title, &index,
                &options);
  const VariantHandle ownOptions(options);
  Descriptor document = descriptorIn(invocation, index);
  if (const std::string problem = documentProblem(document); !problem.empty())
    throw std::runtime_error(problem);
  guint32 token = 0;
  g_variant_lookup(options, "token", "u", &token);
  open(handle, std::make_unique<DocumentRequest>(
                   Caller{application, parent, title}, std::move(document),
                   tokens_.take(application, token), ownerOf(invocation, handle)));
}

RequestOwner PortalService::ownerOf(GDBusMethodInvocation *invocation, const std::string &handle) {
  const auto respond = [invocation](Response response, GVariant *results) {
    if (results == nullptr)
      results = g_variant_new_array(G_VARIANT_TYPE("{sv}"), nullptr, 0);
    g_dbus_method_invocation_return_value(
        invocation, g_variant_new("(u@a{sv})", static_cast<guint32>(response), results));
  };
  const auto end = [this, handle] {
    const auto found = requests_.find(handle);
    g_dbus_connection_unregister_object(connection_.get(), found->second.object);
    const auto ended = std::move(found->second.request); // also the caller of this function
    requests_.erase(found);
    changed_();
  };
  return {respond, end};
}

void PortalService::open(const std::string &handle, std::unique_ptr<PrintRequest> request) {
  if (requests_.count(handle) != 0)
    throw std::runtime_error("there is a request with that handle");
  static constexpr GDBusInterfaceVTable kFunctions{closed, nullptr, nullptr, {}};
  const guint object = registerObject(connection_.get(), handle, kRequest, kFunctions, this);
  try {
    request->start();
  } catch (const std::exception &) {
    g_dbus_connection_unregister_object(connection_.get(), object);
    throw;
  }
  requests_[handle] = {std::move(request), object};
  changed_();
}

void PortalService::closed(GDBusConnection *, const gchar *, const gchar *path, const gchar *,
                           const gchar *, GVariant *, GDBusMethodInvocation *invocation,
                           gpointer self) {
  g_dbus_method_invocation_return_value(invocation, nullptr);
  const auto &requests = static_cast<PortalService *>(self)->requests_;
  if (const auto found = requests.find(path); found != requests.end())
    found->second.request->close();
}

std::unique_ptr<PreparedFile> PortalService::newFile() const {
  std::string path = folder_ + "/job-XXXXXX";
  const Descriptor file(mkostemp(path.data(), O_CLOEXEC));
  if (!file.isOpen())
    throw std::system_error(errno, std::generic_category(), path);
  return std::make_unique<PreparedFile>(path);
}

} // namespace imageposition
