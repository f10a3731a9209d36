// The handle and example catalogue (models/catalogue.def) as tables: what a
// companion tool shows of the products and their example programs.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "models/model_info.hpp"

namespace orv {

// A category and its examples, in the catalogue's order.
using ExampleTable = std::vector<std::pair<std::string, std::vector<std::string>>>;

// One handle's entry of HANDLE_PROPERTIES: its default connect target ("" for
// none) and the port of each example category that applies to it, in the
// order of the console categories.
struct HandleProperties {
  std::string handle;
  std::string connect;
  std::vector<std::pair<std::string, std::optional<int>>> ports;
};

const ExampleTable& consoleExamples();  // EXAMPLE_CONSOLE_DICT
const ExampleTable& guiExamples();      // EXAMPLE_GUI_DICT
// HANDLE_PROPERTIES, one entry per handle of HANDLE_LIST in its order.
const std::vector<HandleProperties>& handleProperties();
// CATEGORY_CONSOLE_DICT: each console category and the handles it applies to.
const ExampleTable& categoryHandles();
// SEE_MORE, COPYRIGHT, SCENARIO, SPYDER, NOTICE.
const std::vector<std::pair<std::string, std::string>>& banners();

}  // namespace orv
