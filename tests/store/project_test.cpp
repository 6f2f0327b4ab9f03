#include "store/project.h"

#include <gtest/gtest.h>

#include "store/security.h"
#include "support/file_bytes.h"
#include "support/mounts.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace quorvel::store {
namespace {

using test::ProjectBuilder;
using test::TempFolder;
using test::TestProject;

TEST(Project, OpensWithEverythingThatItsFilesHold) {
    const TempFolder folder;
    const TestProject files = ProjectBuilder()
                                  .title("Castle")
                                  .scenes(3)
                                  .scene(2, "Hall")
                                  .items(2)
                                  .locations(2)
                                  .cards(1)
                                  .securityCode(1234)
                                  .build(folder.path());
    Project project;
    files.openIn(project);
    EXPECT_TRUE(checkSecurity(project).mismatches.empty());
    EXPECT_TRUE(project.SecurityOn);
    EXPECT_EQ(project.GameTitle, "Castle");
    EXPECT_EQ(project.PlayerName, "Game.exe");
    EXPECT_EQ(project.NumberOfScenes, 3);
    EXPECT_EQ(project.ItemCount, 2);
    EXPECT_EQ(project.LocationCount, 2);
    EXPECT_EQ(project.CueCardCount, 1);
    EXPECT_EQ(project.lists.scenes[1].name, "Hall");
}

}  // namespace
}  // namespace quorvel::store
