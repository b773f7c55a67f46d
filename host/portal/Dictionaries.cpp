#include "Dictionaries.hpp"

#include <cmath>
#include <utility>

namespace imageposition {

namespace {

constexpr std::pair<const char *, std::string PortalPage::*> kStrings[] = {
    {"Name", &PortalPage::name},
    {"PPDName", &PortalPage::ppdName},
    {"DisplayName", &PortalPage::displayName},
    {"Orientation", &PortalPage::orientation}};

constexpr std::pair<const char *, double PortalPage::*> kLengths[] = {
    {"Width", &PortalPage::width},     {"Height", &PortalPage::height},
    {"MarginTop", &PortalPage::top},   {"MarginBottom", &PortalPage::bottom},
    {"MarginLeft", &PortalPage::left}, {"MarginRight", &PortalPage::right}};

} // namespace

PortalJob readJob(GVariant *settings, GVariant *pageSetup) {
  PortalJob job;
  GVariantIter entries;
  const char *name = nullptr;
  GVariant *value = nullptr;
  g_variant_iter_init(&entries, settings);
  while (g_variant_iter_loop(&entries, "{&sv}", &name, &value))
    if (g_variant_is_of_type(value, G_VARIANT_TYPE_STRING))
      job.settings[name] = g_variant_get_string(value, nullptr);
  for (const auto &[key, member] : kStrings)
    if (const char *text = nullptr; g_variant_lookup(pageSetup, key, "&s", &text))
      job.page.*member = text;
  for (const auto &[key, member] : kLengths)
    if (double length = 0; g_variant_lookup(pageSetup, key, "d", &length) && std::isfinite(length))
      job.page.*member = length;
  return job;
}

GVariant *settingsVariant(const PortalSettings &settings) {
  GVariantBuilder builder;
  g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
  for (const auto &[name, value] : settings)
    g_variant_builder_add(&builder, "{sv}", name.c_str(), g_variant_new_string(value.c_str()));
  return g_variant_builder_end(&builder);
}

GVariant *pageVariant(const PortalPage &page) {
  GVariantBuilder builder;
  g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
  for (const auto &[key, member] : kStrings)
    if (const std::string &text = page.*member; !text.empty())
      g_variant_builder_add(&builder, "{sv}", key, g_variant_new_string(text.c_str()));
  for (const auto &[key, member] : kLengths)
    g_variant_builder_add(&builder, "{sv}", key, g_variant_new_double(page.*member));
  return g_variant_builder_end(&builder);
}

} // namespace imageposition
