/// Tests as a user without the administrator's rights, for whom rights and owners count:
///
///     const OtherUser author;
///     if (!author.isPlayed()) {
///         GTEST_SKIP() << author.whyNot();
///     }
#pragma once

#include <filesystem>
#include <string>

namespace quorvel::test {

/// The process acts as a user who owns nothing, until this goes out of scope. Needs the rights of
/// the administrator, which a test of rights needs anyway to give files to somebody else.
class OtherUser {
  public:
    OtherUser();
    ~OtherUser();
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

    [[nodiscard]] bool isPlayed() const { return whyNot_.empty(); }
    [[nodiscard]] const std::string& whyNot() const { return whyNot_; }

    // Both are to be called while nobody is played.
    /// Gives a file, or a folder with all that is in it, to the user that is played.
    static void own(const std::filesystem::path& path);
    /// Gives a file or a folder, without what is in it, to the administrator.
    static void leave(const std::filesystem::path& path);

  private:
    std::string whyNot_;
};

}  // namespace quorvel::test
