#include "platform/FileFacts.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "platform/Scratch.h"

namespace folivant::platform {
namespace {

std::wstring SumOf(std::string_view bytes, std::size_t piece) {
  Sha256 hash;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
    hash.Add(bytes.substr(0, piece));
  }
  return hash.Hex();
}

// The sums that the standard gives for its examples.
TEST(Sha256, OfTheStandardsExamples) {
  const std::pair<std::string, const wchar_t*> rows[] = {
      {"", L"e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
      {"abc", L"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
      {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
       L"248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
      {std::string(1'000'000, 'a'), L"cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}};
  for (const auto& [bytes, sum] : rows) {
    EXPECT_EQ(SumOf(bytes, 1'000'000), sum);
    EXPECT_EQ(SumOf(bytes, 7), sum) << "in pieces";
  }
}

TEST(LinkCountOf, CountsTheNamesOfAFile) {
  const Scratch scratch;
  const std::wstring path = scratch.MakeFile(L"a.txt");
  EXPECT_EQ(LinkCountOf(path), 1U);
  std::filesystem::create_hard_link(Scratch::Native(path), Scratch::Native(scratch.Path(L"b.txt")));
  EXPECT_EQ(LinkCountOf(path), 2U);
  EXPECT_EQ(LinkCountOf(scratch.Path(L"b.txt")), 2U);
}

TEST(FileFacts, OfAMissingFileAreAnErrorThatNamesIt) {
  const Scratch scratch;
  const std::wstring path = scratch.Path(L"gone");
  const auto expectError = [&](auto ask) {
    try {
      ask();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Action(), FailedAction::ReadFile);
      EXPECT_EQ(error.Object(), path);
      EXPECT_EQ(error.SystemCode(), 2U);
    }
  };
  expectError([&] { OwnerOf(path); });
  expectError([&] { LinkCountOf(path); });
}

TEST(FileFacts, AreThereForAFileBeyondThePathLimitAndForADirectory) {
  Scratch scratch;
  const std::wstring folder = scratch.MakeDeepFolder();
  EXPECT_EQ(OwnerOf(folder), OwnerOf(scratch.Folder()));
  EXPECT_NE(OwnerOf(folder), L"");
  EXPECT_GE(LinkCountOf(folder), 1U);
}

TEST(IsPlaceholder, IsWhatIsFetchedWhenItIsRead) {
  EXPECT_FALSE(IsPlaceholder(0x20));
  EXPECT_TRUE(IsPlaceholder(0x1020));
  EXPECT_TRUE(IsPlaceholder(0x400020));
  EXPECT_FALSE(IsPlaceholder(0x80000)) << "pinned: it lies here";
}

}  // namespace
}  // namespace folivant::platform
