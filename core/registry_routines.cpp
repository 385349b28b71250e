#include "core/registry_routines.h"

#include <array>
#include <cmath>
#include <limits>
#include <span>

#include "core/numbers.h"
#include "platform/error.h"

namespace zelvane::core::Registry {

using platform::Error;
using platform::ErrorNumber;
using Port = platform::Registry;

namespace {

// Closes the key also when writing throws.
class OpenKey {
 public:
  OpenKey(Port& registry, Port::Root root, const std::string& path)
      : registry_(registry), opened_(registry.open(root, path)) {}
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  ~OpenKey() {
    if (*this) {
      registry_.close(opened_.key);
    }
  }

  explicit operator bool() const { return opened_.result == Port::Result::success; }
  Port::Key key() const { return opened_.key; }

 private:
  Port& registry_;
  Port::Opened opened_;
};

std::string asText(const Value& value) {
  const auto* number = std::get_if<std::uint32_t>(&value);
  return number == nullptr ? std::get<std::string>(value) : std::to_string(*number);
}

std::uint32_t asNumber(const Value& value) {
  if (const auto* number = std::get_if<std::uint32_t>(&value)) {
    return *number;
  }
  const double number = std::nearbyint(toNumber(std::get<std::string>(value)));
  if (number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max()) {
    throw Error(ErrorNumber::overflow);
  }
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(number));
}

}  // namespace

void SetKeyValue(Port& registry, Port::Root root, const std::string& path, const std::string& name,
                 const Value& value, Port::Type type) {
  const OpenKey key(registry, root, path);
  if (key) {
    SetValueEx(registry, key.key(), name, type, value);
  }
}

Port::Result SetValueEx(Port& registry, Port::Key key, const std::string& name, Port::Type type,
                        const Value& value) {
  switch (type) {
    case Port::Type::string: {
      const std::string text = asText(value);
      const std::span<const char> withZero(text.c_str(), text.size() + 1);
      return registry.set(key, name, type, std::as_bytes(withZero));
    }
    case Port::Type::number: {
      const std::uint32_t number = asNumber(value);
      std::array<std::byte, 4> bytes{};
      for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::byte>(number >> (8 * i) & 0xFFU);
      }
      return registry.set(key, name, type, bytes);
    }
  }
  return Port::Result::success;
}

std::optional<std::string> stringValue(Port& registry, Port::Root root, const std::string& path,
                                       const std::string& name) {
  const OpenKey key(registry, root, path);
  if (!key) {
    return std::nullopt;
  }
  const auto value = registry.query(key.key(), name);
  if (!value || value->type != Port::Type::string) {
    return std::nullopt;
  }
  std::string text;
  for (const std::byte byte : value->data) {
    if (byte == std::byte{0}) {
      break;
    }
    text += static_cast<char>(byte);
  }
  return text;
}

}  // namespace zelvane::core::Registry
