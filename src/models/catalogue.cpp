// Every catalogue table, built from the rows of models/catalogue.def and the
// model table.  A name with two different display texts, a port row for an
// unknown handle or category, or a handle with a category twice is a fault
// of the rows: the first use of the tables throws and names it.
#include "models/catalogue.hpp"

#include <algorithm>
#include <stdexcept>

namespace orv {

namespace {

struct GroupRow {
  const char* key;
  const char* label;
  DeviceKind kind;
};
struct UtilityRow {
  const char* handle;
  const char* label;
  const char* connect;
};
struct LinkRow {
  DeviceKind kind;
  const char* connect;
  const char* category;
};
struct NamedRow {  // categories and examples
  const char* category;
  const char* name;
  const char* label;
};
struct PortRow {
  const char* handle;
  const char* category;
  std::optional<int> port;
};

constexpr DeviceKind kNone = DeviceKind::None, kWifi = DeviceKind::Wifi,
                     kEthernet = DeviceKind::Ethernet, kUsb = DeviceKind::Usb;

const std::vector<GroupRow> kGroups = {
#define ORV_GROUP(key, label, kind) {#key, label, k##kind},
#include "models/catalogue.def"
};
const std::vector<std::pair<const char*, const char*>> kLabels = {
#define ORV_LABEL(key, label) {#key, label},
#include "models/catalogue.def"
};
const std::vector<UtilityRow> kUtilities = {
#define ORV_UTILITY(Class, label, connect) {#Class, label, connect},
#include "models/catalogue.def"
};
const std::vector<LinkRow> kLinks = {
#define ORV_LINK(kind, connect, category) {k##kind, connect, #category},
#include "models/catalogue.def"
};
const std::vector<NamedRow> kConsole = {
#define ORV_CATEGORY(Category, label) {#Category, nullptr, label},
#define ORV_EXAMPLE(Category, name, label) {#Category, #name, label},
#include "models/catalogue.def"
};
const std::vector<NamedRow> kGui = {
#define ORV_GUI_CATEGORY(Category, label) {#Category, nullptr, label},
#define ORV_GUI_EXAMPLE(Category, name, label) {#Category, #name, label},
#include "models/catalogue.def"
};
const std::vector<PortRow> kPorts = {
#define ORV_PORT(Class, Category, port) {#Class, #Category, port},
#include "models/catalogue.def"
};
const std::vector<std::pair<std::string, std::string>> kBanners = {
#define ORV_BANNER(NAME, text) {#NAME, text},
#include "models/catalogue.def"
};

ExampleTable exampleTable(const std::vector<NamedRow>& rows) {
  ExampleTable out;
  for (const NamedRow& r : rows) {
    if (!r.name)
      out.emplace_back(r.category, std::vector<std::string>{});
    else if (out.empty() || out.back().first != r.category)
      throw std::logic_error(std::string("catalogue.def: example ") + r.name +
                             " stands outside its category " + r.category);
    else
      out.back().second.emplace_back(r.name);
  }
  return out;
}

const char* linkCategory(DeviceKind kind, const char** connect) {
  for (const LinkRow& l : kLinks)
    if (l.kind == kind) {
      *connect = l.connect;
      return l.category;
    }
  return nullptr;
}

// The position of a console category, for ordering a handle's ports.
size_t categoryIndex(const std::string& category) {
  const ExampleTable& t = consoleExamples();
  for (size_t i = 0; i < t.size(); ++i)
    if (t[i].first == category) return i;
  throw std::logic_error("catalogue.def: a port row names the category " + category +
                         ", which is not a console category");
}

HandleProperties propertiesOf(const std::string& handle, const char* connect,
                              const char* system_category) {
  HandleProperties hp{handle, connect ? connect : "", {}};
  if (system_category) hp.ports.emplace_back(system_category, std::nullopt);
  for (const PortRow& p : kPorts)
    if (handle == p.handle) {
      for (const auto& [cat, port] : hp.ports)
        if (cat == p.category)
          throw std::logic_error("catalogue.def: " + handle + " has the category " + cat +
                                 " twice");
      hp.ports.emplace_back(p.category, p.port);
    }
  std::stable_sort(hp.ports.begin(), hp.ports.end(), [](const auto& a, const auto& b) {
    return categoryIndex(a.first) < categoryIndex(b.first);
  });
  return hp;
}

void addLabel(LabelEntries& out, const std::string& key, const std::string& label) {
  for (const auto& [k, l] : out)
    if (k == key) {
      if (l != label)
        throw std::logic_error("catalogue.def: " + key + " has two display texts, \"" + l +
                               "\" and \"" + label + "\"");
      return;
    }
  out.emplace_back(key, label);
}

}  // namespace

const ExampleTable& consoleExamples() {
  static const ExampleTable t = exampleTable(kConsole);
  return t;
}

const ExampleTable& guiExamples() {
  static const ExampleTable t = exampleTable(kGui);
  return t;
}

const HandleGroups& handleGroups() {
  static const HandleGroups groups = [] {
    HandleGroups out;
    for (const GroupRow& g : kGroups) {
      std::vector<std::string> names;
      if (g.kind == DeviceKind::None)
        for (const UtilityRow& u : kUtilities) names.emplace_back(u.handle);
      else
        for (const ModelInfo& row : modelTable())
          if (row.device == g.kind) names.push_back(row.class_name);
      out.emplace_back(g.key, std::move(names));
    }
    return out;
  }();
  return groups;
}

std::vector<std::string> productList() {
  std::vector<std::string> out;
  for (const GroupRow& g : kGroups)
    if (g.kind != DeviceKind::None)
      for (const auto& [group, names] : handleGroups())
        if (group == g.key) out.insert(out.end(), names.begin(), names.end());
  return out;
}

std::vector<std::string> handleList() {
  std::vector<std::string> out;
  for (const auto& [group, names] : handleGroups())
    out.insert(out.end(), names.begin(), names.end());
  return out;
}

const std::vector<HandleProperties>& handleProperties() {
  static const std::vector<HandleProperties> table = [] {
    std::vector<HandleProperties> out;
    for (const UtilityRow& u : kUtilities)
      out.push_back(propertiesOf(u.handle, u.connect, nullptr));
    for (const std::string& name : productList()) {
      const char* connect = nullptr;
      const char* system = linkCategory(modelInfo(name).device, &connect);
      out.push_back(propertiesOf(name, connect, system));
    }
    for (const PortRow& p : kPorts)
      if (std::none_of(out.begin(), out.end(), [&](const auto& h) { return h.handle == p.handle; }))
        throw std::logic_error(std::string("catalogue.def: a port row names ") + p.handle +
                               ", which is no handle");
    return out;
  }();
  return table;
}

const ExampleTable& categoryHandles() {
  static const ExampleTable table = [] {
    ExampleTable out;
    for (const auto& [category, examples] : consoleExamples()) {
      std::vector<std::string> handles;
      for (const HandleProperties& hp : handleProperties())
        for (const auto& [cat, port] : hp.ports)
          if (cat == category) handles.push_back(hp.handle);
      out.emplace_back(category, std::move(handles));
    }
    return out;
  }();
  return table;
}

const LabelEntries& labelEntries() {
  static const LabelEntries entries = [] {
    LabelEntries out;
    for (const GroupRow& g : kGroups) addLabel(out, g.key, g.label);
    for (const auto& [key, label] : kLabels) addLabel(out, key, label);
    for (const UtilityRow& u : kUtilities) addLabel(out, u.handle, u.label);
    for (const ModelInfo& row : modelTable()) addLabel(out, row.class_name, row.label);
    for (const auto* rows : {&kConsole, &kGui})
      for (const NamedRow& r : *rows) addLabel(out, r.name ? r.name : r.category, r.label);
    return out;
  }();
  return entries;
}

const std::vector<std::pair<std::string, std::string>>& banners() { return kBanners; }

// _getDeviceName: the display text of a handle; the class name itself for the
// bare device classes.
std::string labelFor(const std::string& class_name) {
  for (const UtilityRow& u : kUtilities)
    if (class_name == u.handle) return u.label;
  for (const GroupRow& g : kGroups)
    if (class_name == g.key) return g.label;
  return modelInfo(class_name).label;
}

}  // namespace orv
