#include "platform/shared/noted_value.h"

namespace zelvane::platform {

LiveRegistry::LiveValue notedValue(Ledger& ledger, const std::string& path,
                                   const std::string& name) {
  const Ledger::Entry entry{Ledger::Kind::registryValue,
                            R"(HKEY_CURRENT_USER\)" + path + "\\" + name};
  return {.path = path,
          .name = name,
          .beforeSet = [&ledger, entry] { ledger.note(entry); },
          .afterDelete = [&ledger, entry] { ledger.strike(entry); }};
}

}  // namespace zelvane::platform
