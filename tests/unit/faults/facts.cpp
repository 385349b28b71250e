#include "tests/unit/faults/facts.h"

#include <array>

#include "core/controls/menu.h"
#include "core/controls/option_button.h"
#include "core/text.h"

namespace zelvane::faults {

namespace {

using platform::MemoryNode;
using Root = platform::Registry::Root;

constexpr auto kTitle = "Zelvane";
constexpr auto kProgramFolder = "/opt/zelvane";

struct Name {
  const char* first;
  const char* second;
};

constexpr auto kSettings = std::to_array<Name>({{"Options", "StartUp"},
                                                {"PopupKiller", "IsActive"},
                                                {"HomePage", "StartPage"},
                                                {"Schedule", "RunOn"},
                                                {"Schedule", "Date"},
                                                {"Schedule", "Time"},
                                                {"Schedule", "RunAfter"},
                                                {"Schedule", "LastRunTime"}});
constexpr auto kValues = std::to_array<Name>({{kBrowserMain, "Start Page"},
                                              {kBrowserMain, "Disable Script Debugger"},
                                              {kBrowserMain, "Disable Script DebuggerX"},
                                              {kAutoComplete, "AutoSuggest"},
                                              {kTypedUrls, "url1"},
                                              {kRunMru, "a"},
                                              {kRun, "Zelvane"}});

std::string stored(const std::string& application, const std::string& section,
                   const std::string& key) {
  return "stored " + application + "/" + section + "/" + key;
}

std::string kindOf(const MemoryNode& node) {
  switch (node.kind) {
    case MemoryNode::Kind::folder:
      return "folder";
    case MemoryNode::Kind::link:
      return "link";
    case MemoryNode::Kind::socket:
      return "socket";
    case MemoryNode::Kind::file:
      return std::string(node.file.hidden ? "hidden " : "") + "file" +
             (node.file.inUse ? " in use" : "");
  }
  return "";
}

void addPaths(Facts& facts, const MemoryNode& folder, const std::string& path) {
  for (const MemoryNode* node : folder.children) {
    const std::string below = path + "/" + node->name;
    facts["path " + below] = kindOf(*node);
    addPaths(facts, *node, below);
  }
}

void addRegistry(Facts& facts, const platform::MemoryRegistry& registry) {
  for (const char* path : {kBrowserMain, kAutoComplete, kTypedUrls, kRunMru}) {
    if (registry.hasKey(Root::currentUser, path)) {
      facts["key " + inUserRoot(path)] = "there";
    }
  }
  for (const auto& [path, name] : kValues) {
    if (const auto text = registry.text(Root::currentUser, path, name)) {
      facts["value " + inUserRoot(path) + "\\" + name] = *text;
    }
  }
  const std::vector<std::string> opened = registry.openKeys();
  for (std::size_t i = 0; i < opened.size(); ++i) {
    facts[numbered("opened", i)] = opened[i];
  }
}

void addSettings(Facts& facts, const platform::MemorySettings& settings) {
  for (const auto& [section, key] : kSettings) {
    if (const auto text = settings.find(section, key)) {
      facts[storedFact(section, key)] = *text;
    }
  }
  for (std::size_t index = 0; index < cleaner::kOptionCount; ++index) {
    const std::string key = "Index" + std::to_string(index);
    if (const auto text = settings.find(kProgramFolder, "Settings", key)) {
      facts[storedOptionFact(index)] = *text;
    }
  }
  for (std::size_t i = 0; i < settings.saves().size(); ++i) {
    const auto& save = settings.saves()[i];
    facts[numbered("save", i)] =
        stored(save.application, save.section, save.key) + " = " + save.text;
  }
}

std::string iconName(platform::MessageIcon icon) {
  switch (icon) {
    case platform::MessageIcon::none:
      return "none";
    case platform::MessageIcon::information:
      return "information";
    case platform::MessageIcon::exclamation:
      return "exclamation";
    case platform::MessageIcon::critical:
      return "critical";
  }
  return "";
}

std::string told(const std::string& icon, const std::string& title, const std::string& text) {
  return icon + " | " + title + " | " + text;
}

std::string yesOrNo(bool yes) { return yes ? "yes" : "no"; }

std::string colourName(controls::RichLog::Colour colour) {
  switch (colour) {
    case controls::RichLog::Colour::black:
      return "black";
    case controls::RichLog::Colour::blue:
      return "blue";
    case controls::RichLog::Colour::green:
      return "green";
  }
  return "";
}

std::string valueOf(const controls::DatePicker& picker) {
  const auto value = picker.value();
  if (!value) {
    return "none";
  }
  const auto day = std::chrono::local_days(value->date).time_since_epoch();
  return std::to_string(day.count()) + " " + core::timeText(value->timeOfDay);
}

void addControl(Facts& facts, const controls::Control& control) {
  const auto fact = [&](const char* what) -> std::string& { return facts[control.name() + what]; };
  if (!control.enabled()) {
    fact(".disabled") = "yes";
  }
  if (!control.visible()) {
    fact(".hidden") = "yes";
  }
  if (const auto* captioned = dynamic_cast<const controls::CaptionedControl*>(&control)) {
    fact(".caption") = captioned->caption();
  }
  if (const auto* box = dynamic_cast<const controls::CheckBox*>(&control)) {
    fact(".value") = std::to_string(box->value());
  }
  if (const auto* button = dynamic_cast<const controls::OptionButton*>(&control)) {
    fact(".value") = yesOrNo(button->value());
  }
  if (const auto* box = dynamic_cast<const controls::TextBox*>(&control)) {
    fact(".text") = box->text();
    if (box->background() == controls::TextBox::Background::buttonFace) {
      fact(".background") = "button face";
    }
  }
  if (const auto* list = dynamic_cast<const controls::ComboBox*>(&control)) {
    fact(".listIndex") = std::to_string(list->listIndex());
  }
  if (const auto* picker = dynamic_cast<const controls::DatePicker*>(&control)) {
    fact(".value") = valueOf(*picker);
  }
  if (const auto* strip = dynamic_cast<const controls::TabStrip*>(&control)) {
    fact(".tab") = std::to_string(strip->tab());
  }
  if (const auto* item = dynamic_cast<const controls::MenuItem*>(&control)) {
    fact(".checked") = yesOrNo(item->checked());
  }
  if (const auto* log = dynamic_cast<const controls::RichLog*>(&control)) {
    for (std::size_t i = 0; i < log->runs().size(); ++i) {
      const auto& run = log->runs()[i];
      facts[numbered(control.name() + ".run", i)] = colourName(run.colour) + run.text;
    }
  }
}

std::string quoted(const std::string& text) { return '"' + text + '"'; }

std::string difference(const std::string& name, const std::string& expected,
                       const std::string& found) {
  return name + ": " + found + " instead of " + expected;
}

}  // namespace

std::string inUserRoot(const std::string& path) { return R"(HKEY_CURRENT_USER\)" + path; }

std::string numbered(const std::string& name, std::size_t index) {
  return name + (index < 10 ? " 0" : " ") + std::to_string(index);
}

std::string boxFact(const std::string& icon, const std::string& text) {
  return told(icon, kTitle, text);
}

std::string storedFact(const std::string& section, const std::string& key) {
  return stored(kTitle, section, key);
}

std::string storedOptionFact(std::size_t index) {
  return stored(kProgramFolder, "Settings", "Index" + std::to_string(index));
}

Facts factsOf(const platform::MemoryDesktop& desktop) {
  Facts facts;
  addPaths(facts, *desktop.fileSystem.find("/"), "");
  addRegistry(facts, desktop.registry);
  addSettings(facts, desktop.settings);
  facts["win.ini DVK"] = desktop.winIni.find("Extensions", "DVK").value_or("(none)");
  facts["bin"] = std::to_string(desktop.recycleBin.items().size()) + " items";
  facts["clipboard"] = desktop.clipboard.content;
  facts["ended"] = yesOrNo(desktop.process.ended());
  for (std::size_t i = 0; i < desktop.dialogs.boxes().size(); ++i) {
    const auto& box = desktop.dialogs.boxes()[i];
    facts[numbered("box", i)] = told(iconName(box.icon), box.title, box.text);
  }
  return facts;
}

Facts factsOf(const main_window::frmMain& window) {
  Facts facts;
  for (const controls::Page* page : window.pages()) {
    for (const controls::Control* control : page->controls()) {
      addControl(facts, *control);
    }
  }
  return facts;
}

std::vector<std::string> differences(const Facts& expected, const Facts& found) {
  std::vector<std::string> lines;
  for (const auto& [name, value] : expected) {
    const auto other = found.find(name);
    if (other == found.end()) {
      lines.push_back(difference(name, quoted(value), "nothing"));
    } else if (other->second != value) {
      lines.push_back(difference(name, quoted(value), quoted(other->second)));
    }
  }
  for (const auto& [name, value] : found) {
    if (!expected.contains(name)) {
      lines.push_back(difference(name, "nothing", quoted(value)));
    }
  }
  return lines;
}

Facts beginningWith(const std::string& name, const Facts& facts) {
  Facts chosen;
  for (auto fact = facts.lower_bound(name); fact != facts.end(); ++fact) {
    if (!fact->first.starts_with(name)) {
      break;
    }
    chosen.insert(*fact);
  }
  return chosen;
}

}  // namespace zelvane::faults
