#include "SheetTask.hpp"

#include <nlohmann/json.hpp>

namespace imageposition {

namespace {

using Json = nlohmann::json;

Json written(const PageShape &page) {
  const PageRectangle &area = page.imageable;
  return {page.width.count, page.height.count, area.left.count,
          area.top.count,   area.right.count,  area.bottom.count};
}

PageShape readPage(const Json &page) {
  return {{page.at(0)}, {page.at(1)}, {{page.at(2)}, {page.at(3)}, {page.at(4)}, {page.at(5)}}};
}

} // namespace

// NOLINTBEGIN(readability-identifier-naming): the library looks for these names.
static void to_json(Json &json, const SideWords &side) {
  json = {
      {"name", side.name}, {"sheet", side.sheet}, {"facts", side.facts}, {"advice", side.advice}};
}

static void from_json(const Json &json, SideWords &side) {
  json.at("name").get_to(side.name);
  json.at("sheet").get_to(side.sheet);
  json.at("facts").get_to(side.facts);
  json.at("advice").get_to(side.advice);
}

static void to_json(Json &json, const SheetWords &sheet) {
  json = {{"front", sheet.front}, {"back", sheet.back}};
}

static void from_json(const Json &json, SheetWords &sheet) {
  json.at("front").get_to(sheet.front);
  json.at("back").get_to(sheet.back);
}

static void to_json(Json &json, const SheetTask &task) {
  json = {{"page", written(task.page)},
          {"isShortEdge", task.turning == Turning::ShortEdge},
          {"sheets", task.sheets},
          {"title", task.title},
          {"example", task.example}};
}

static void from_json(const Json &json, SheetTask &task) {
  task.page = readPage(json.at("page"));
  task.turning = json.at("isShortEdge").get<bool>() ? Turning::ShortEdge : Turning::LongEdge;
  json.at("sheets").get_to(task.sheets);
  json.at("title").get_to(task.title);
  json.at("example").get_to(task.example);
}
// NOLINTEND(readability-identifier-naming)

std::string textOf(const SheetTask &task) {
  return Json(task).dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<SheetTask> readSheetTask(const std::string &text) try {
  return Json::parse(text).get<SheetTask>();
} catch (const Json::exception &) {
  return std::nullopt;
}

} // namespace imageposition
