/// A project, a folder Incoming and an author whose answers are set, for the tests of the gate.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "resources/intake.h"
#include "resources/path_text.h"
#include "support/file_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::test {

/// Keeps what it is told; a question without an answer fails the test.
class PlayedQuestions : public resources::IntakeQuestions {
  public:
    void tell(const resources::IntakeNotice& notice) override { told.push_back(notice); }
    bool mayReplace(const QString& name) override {
        asked.push_back("replace " + name.toStdString());
        return replace;
    }
    bool useShorter(const QString& name, const QString& shorter) override {
        asked.push_back("use " + shorter.toStdString() + " for " + name.toStdString());
        return takesShorter;
    }
    resources::Pick copyOrMove() override {
        asked.emplace_back("copy or move");
        return pick;
    }
    void working(const QString& name, std::uintmax_t done, std::uintmax_t total) override {
        EXPECT_FALSE(name.isEmpty());
        EXPECT_LE(done, total);
        if (whileWorking) {
            whileWorking();
        }
    }

    bool replace = false;
    bool takesShorter = false;
    resources::Pick pick = resources::Pick::none;
    std::function<void()> whileWorking;
    std::vector<resources::IntakeNotice> told;
    std::vector<std::string> asked;
};

class IntakeStage : public ::testing::Test {
  protected:
    using What = resources::IntakeNotice::What;

    IntakeStage() {
        project.ProjectFolder = store::textOf(gfx.parent_path().parent_path()) + "/";
        rules.InstallPath = resources::pathText(folder.path() / "editor") + QLatin1Char('/');
    }

    bool check(const std::filesystem::path& path,
               store::ResourceFolder kind = store::ResourceFolder::gfx) {
        return intake.CheckFileLoc(resources::pathText(path), kind);
    }
    /// The only thing that the author was told.
    [[nodiscard]] resources::IntakeNotice notice() const {
        EXPECT_EQ(questions.told.size(), 1U);
        return questions.told.empty() ? resources::IntakeNotice{} : questions.told.front();
    }
    void expectSilence() const {
        EXPECT_TRUE(questions.told.empty());
        EXPECT_TRUE(questions.asked.empty());
    }

    TempFolder folder;
    std::filesystem::path gfx = folder.makeFolder("game/resource/gfx");
    std::filesystem::path mmedia = folder.makeFolder("game/resource/mmedia");
    std::filesystem::path incoming = folder.makeFolder("editor/Incoming");
    std::filesystem::path pictures = folder.makeFolder("pictures");
    store::Project project;
    resources::IntakeRules rules;
    PlayedQuestions questions;
    resources::Intake intake{project, [this] { return rules; }, questions};
};

}  // namespace quorvel::test
