#include "platform/windows/windows_identity.h"

#include <array>
#include <cstdio>
#include <string_view>
#include <vector>

#include "platform/shared/ascii_case.h"
#include "platform/shared/product.h"
#include "platform/windows/system_error.h"
#include "platform/windows/wide_text.h"

namespace zelvane::platform {
namespace {

constexpr WORD kVersionId = 1;  // the one version resource of a module

std::string pathOfThisProgram() {
  for (DWORD size = MAX_PATH;; size *= 2) {
    std::wstring path(size, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), size);
    if (length == 0) throwSystemError();
    if (length < size) return plainText({path.data(), length});
  }
}

// A copy, because the system's reader of version resources may write into what it reads.
std::vector<std::byte> versionResource(HMODULE module) {
  const HRSRC resource =
      FindResourceW(module, MAKEINTRESOURCEW(kVersionId), reinterpret_cast<LPCWSTR>(RT_VERSION));
  const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
  const void* data = loaded == nullptr ? nullptr : LockResource(loaded);
  if (data == nullptr) return {};
  const auto* bytes = static_cast<const std::byte*>(data);
  return {bytes, bytes + SizeofResource(module, resource)};
}

template <typename Part>
const Part* partAt(const std::vector<std::byte>& resource, const std::wstring& path, UINT& size) {
  void* part = nullptr;
  if (VerQueryValueW(resource.data(), path.c_str(), &part, &size) == 0) return nullptr;
  return static_cast<const Part*>(part);
}

// Language and code page of the resource's texts, as a part of their path.
std::wstring languageOf(const std::vector<std::byte>& resource) {
  UINT size = 0;
  const auto* language = partAt<WORD>(resource, LR"(\VarFileInfo\Translation)", size);
  if (language == nullptr || size < 2 * sizeof(WORD)) return L"040904B0";
  std::array<wchar_t, 9> text{};
  std::swprintf(text.data(), text.size(), L"%04x%04x", language[0], language[1]);
  return text.data();
}

}  // namespace

std::optional<VersionRecord> versionRecordOf(HMODULE module) {
  const std::vector<std::byte> resource = versionResource(module);
  UINT size = 0;
  const auto* numbers =
      resource.empty() ? nullptr : partAt<VS_FIXEDFILEINFO>(resource, L"\\", size);
  if (numbers == nullptr) return std::nullopt;
  VersionRecord record = product();
  record.major = HIWORD(numbers->dwProductVersionMS);
  record.minor = LOWORD(numbers->dwProductVersionMS);
  const std::wstring texts = LR"(\StringFileInfo\)" + languageOf(resource) + L"\\";
  const auto take = [&](const wchar_t* name, std::string& field) {
    const auto* text = partAt<wchar_t>(resource, texts + name, size);
    if (text != nullptr) field = plainText(text);
  };
  take(L"ProductName", record.productName);
  take(L"CompanyName", record.companyName);
  take(L"LegalCopyright", record.legalText);
  take(L"Comments", record.makerAddress);
  return record;
}

ProgramPlace programPlace(std::string path) {
  const auto separator = path.rfind('\\');
  ProgramPlace place{path.substr(0, separator), path.substr(separator + 1)};
  if (place.folder.ends_with(':')) place.folder += '\\';
  constexpr std::string_view kSuffix = ".exe";
  if (place.name.size() > kSuffix.size() &&
      sameName(place.name.substr(place.name.size() - kSuffix.size()), kSuffix)) {
    place.name.resize(place.name.size() - kSuffix.size());
  }
  return place;
}

WindowsIdentity::WindowsIdentity() : version_(versionRecordOf(nullptr).value_or(product())) {
  ProgramPlace place = programPlace(pathOfThisProgram());
  programFolder_ = std::move(place.folder);
  executableName_ = std::move(place.name);
}

}  // namespace zelvane::platform
