#include "History.hpp"

#include "FileContent.hpp"
#include "HistoryTexts.hpp"
#include "UserFile.hpp"

#include <nlohmann/json.hpp>

namespace imageposition {

namespace {

using Json = nlohmann::json;

constexpr double kLargestWindow = 100000; // points

std::string fileIn(const std::string &folder) { return folder + "/jobs.json"; }

/// Throws a `FileTrouble`.
History historyIn(const std::optional<std::string> &content) {
  if (!content)
    return {};
  auto history = History::fromText(*content);
  if (!history)
    throw FileTrouble(messages::kNotAHistory);
  return *history;
}

bool isHistory(std::string_view content) {
  return History::fromText(std::string(content)).has_value();
}

std::optional<WindowSize> windowIn(const Json &file) {
  const auto sizes = file.find("window");
  if (sizes == file.end() || !sizes->is_array() || sizes->size() != 2 || !(*sizes)[0].is_number() ||
      !(*sizes)[1].is_number())
    return std::nullopt;
  const WindowSize size{(*sizes)[0].get<double>(), (*sizes)[1].get<double>()};
  const bool isUsable = size.width > 0 && size.height > 0 && size.width <= kLargestWindow &&
                        size.height <= kLargestWindow;
  return isUsable ? std::optional(size) : std::nullopt;
}

std::string stringIn(const Json &object, const char *name) {
  const auto member = object.find(name);
  return member != object.end() && member->is_string() ? member->get<std::string>() : "";
}

PrintSettingsStore settingsIn(const Json &printer) {
  PrintSettingsStore settings;
  const auto member = printer.find("settings");
  if (member != printer.end() && member->is_object())
    for (const auto &[name, value] : member->items())
      if (value.is_string())
        settings.set(name, value.get<std::string>()); // ignores what no job can hold
  return settings;
}

} // namespace

std::optional<History> History::fromText(const std::string &text) {
  const Json file = Json::parse(text, nullptr, false);
  const auto printers = file.is_object() ? file.find("printers") : file.end();
  if (!file.is_object() || printers == file.end() || !printers->is_object())
    return std::nullopt;
  History history;
  history.printer_ = stringIn(file, "printer");
  history.window_ = windowIn(file);
  for (const auto &[name, printer] : printers->items())
    if (printer.is_object())
      history.printers_[name] = {stringIn(printer, "preset"), settingsIn(printer)};
  return history;
}

std::string History::text() const {
  Json printers = Json::object();
  for (const auto &[name, printer] : printers_) {
    Json settings = Json::object();
    for (int i = 0; i < printer.settings.optionCount(); i++)
      settings[printer.settings.options()[i].name] = printer.settings.options()[i].value;
    printers[name]["settings"] = std::move(settings);
    if (!printer.preset.empty())
      printers[name]["preset"] = printer.preset;
  }
  Json file{{"printer", printer_}, {"printers", std::move(printers)}};
  if (window_)
    file["window"] = {window_->width, window_->height};
  return file.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

History History::read(std::ostream &errors) {
  const std::string in = stateFolder();
  if (in.empty())
    return {};
  try {
    return historyIn(contentOfFile(fileIn(in)));
  } catch (const FileTrouble &trouble) {
    errors << messages::historyUnreadable(fileIn(in), trouble.what()) << std::endl;
    return {};
  }
}

PrintSettingsStore History::settings(const std::string &printer) const {
  const auto found = printers_.find(printer);
  return found != printers_.end() ? found->second.settings : PrintSettingsStore();
}

std::string History::preset(const std::string &printer) const {
  const auto found = printers_.find(printer);
  return found != printers_.end() ? found->second.preset : "";
}

void History::setSettings(const std::string &printer, const PrintSettingsStore &settings) {
  printers_[printer].settings = settings;
}

void History::setPreset(const std::string &printer, const std::string &preset) {
  printers_[printer].preset = preset;
}

bool changeHistory(const std::function<void(History &)> &change, std::ostream &errors) {
  const std::string in = stateFolder();
  if (in.empty())
    return false;
  const std::string path = fileIn(in);
  try {
    changeUserFile(
        path,
        [&](const std::optional<std::string> &content) {
          History history = historyIn(content);
          change(history);
          return history.text();
        },
        isHistory);
    return true;
  } catch (const FileTrouble &trouble) {
    errors << messages::historyUnwritable(path, trouble.what()) << std::endl;
    return false;
  }
}

} // namespace imageposition
