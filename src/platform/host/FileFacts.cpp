#include "platform/FileFacts.h"

#include <fcntl.h>
#include <openssl/evp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <new>

#include "platform/Utf8.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {
namespace {

struct stat StatusOf(std::wstring_view path) {
  const HostPath place = Locate(path);
  struct stat status;
  if (fstatat(place.Directory(), place.Name(), &status, 0) != 0) {
    throw SystemError(FailedAction::ReadFile, std::wstring(path));
  }
  return status;
}

}  // namespace

std::wstring OwnerOf(std::wstring_view path) {
  const uid_t user = StatusOf(path).st_uid;
  const passwd* const entry = getpwuid(user);
  return entry == nullptr ? std::to_wstring(user) : FromUtf8(entry->pw_name);
}

std::uint32_t LinkCountOf(std::wstring_view path) {
  return static_cast<std::uint32_t>(StatusOf(path).st_nlink);
}

struct Sha256::State {
  EVP_MD_CTX* Context = EVP_MD_CTX_new();
  State() = default;
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() { EVP_MD_CTX_free(Context); }
};

Sha256::Sha256() : state_(std::make_unique<State>()) {
  if (EVP_DigestInit_ex(state_->Context, EVP_sha256(), nullptr) != 1) {
    throw std::bad_alloc();
  }
}
Sha256::~Sha256() = default;

void Sha256::Add(std::span<const char> bytes) {
  EVP_DigestUpdate(state_->Context, bytes.data(), bytes.size());
}

std::wstring Sha256::Hex() {
  unsigned char digest[32];
  EVP_DigestFinal_ex(state_->Context, digest, nullptr);
  return HexDigits(digest);
}

}  // namespace folivant::platform
