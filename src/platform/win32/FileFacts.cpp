#include "platform/FileFacts.h"

#include <map>
#include <new>
#include <vector>

#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

#include <sddl.h>

namespace folivant::platform {
namespace {

using Bytes = std::vector<BYTE>;

/// "S-1-5-21-...", for an owner that no authority knows any more.
std::wstring SidText(PSID sid) {
  wchar_t* text = nullptr;
  if (!ConvertSidToStringSidW(sid, &text)) {
    return {};
  }
  const OwnedLocal owned(text);
  return text;
}

std::wstring AccountOf(PSID sid) {
  constexpr DWORD kRoom = 512;
  wchar_t name[kRoom];
  wchar_t domain[kRoom];
  DWORD nameSize = kRoom;
  DWORD domainSize = kRoom;
  SID_NAME_USE use{};
  if (!LookupAccountSidW(nullptr, sid, name, &nameSize, domain, &domainSize, &use)) {
    return SidText(sid);
  }
  return domain[0] == L'\0' ? std::wstring(name) : std::wstring(domain) + L'\\' + name;
}

/// A look-up may ask a server, and a tree has few owners.
const std::wstring& KnownAccountOf(PSID sid) {
  static std::map<std::string, std::wstring> known;
  std::string key(static_cast<const char*>(sid), GetLengthSid(sid));
  const auto found = known.find(key);
  return found != known.end() ? found->second : known.emplace(std::move(key), AccountOf(sid)).first->second;
}

}  // namespace

std::wstring OwnerOf(std::wstring_view path) {
  const std::wstring name = EntryPathForm(path);
  DWORD size = 0;
  GetFileSecurityW(name.c_str(), OWNER_SECURITY_INFORMATION, nullptr, 0, &size);
  Bytes descriptor(size);
  if (size == 0 || !GetFileSecurityW(name.c_str(), OWNER_SECURITY_INFORMATION, descriptor.data(), size, &size)) {
    throw SystemError(FailedAction::ReadFile, std::wstring(path), GetLastError());
  }
  PSID owner = nullptr;
  BOOL defaulted = FALSE;
  if (!GetSecurityDescriptorOwner(descriptor.data(), &owner, &defaulted) || owner == nullptr) {
    return {};  // a file system without owners
  }
  return KnownAccountOf(owner);
}

std::uint32_t LinkCountOf(std::wstring_view path) {
  const OwnedFile file(CreateFileW(EntryPathForm(path).c_str(), FILE_READ_ATTRIBUTES,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!file.IsOpen() || !GetFileInformationByHandle(file.Get(), &information)) {
    throw SystemError(FailedAction::ReadFile, std::wstring(path), GetLastError());
  }
  return information.nNumberOfLinks;
}

struct Sha256::State {
  OwnedAlgorithm Algorithm;
  OwnedHash Hash;
};

Sha256::Sha256() : state_(std::make_unique<State>()) {
  BCRYPT_ALG_HANDLE algorithm = nullptr;
  BCRYPT_HASH_HANDLE hash = nullptr;
  if (BCryptOpenAlgorithmProvider(&algorithm, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0) {
    state_->Algorithm = OwnedAlgorithm(algorithm);
    BCryptCreateHash(algorithm, &hash, nullptr, 0, nullptr, 0, 0);
    state_->Hash = OwnedHash(hash);
  }
  if (hash == nullptr) {
    throw std::bad_alloc();  // the algorithm is part of every Windows: only memory can be missing
  }
}
Sha256::~Sha256() = default;

void Sha256::Add(std::span<const char> bytes) {
  // The function takes changeable bytes and does not change them.
  BCryptHashData(state_->Hash.Get(), reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data())),
                 static_cast<ULONG>(bytes.size()), 0);
}

std::wstring Sha256::Hex() {
  unsigned char digest[32] = {};
  BCryptFinishHash(state_->Hash.Get(), digest, sizeof digest, 0);
  return HexDigits(digest);
}

}  // namespace folivant::platform
