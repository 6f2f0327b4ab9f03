/// A project in a folder of its own, opened by the store's own routines.
#pragma once

#include <gtest/gtest.h>

#include "store/project.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace quorvel::store {

class ProjectStage : public ::testing::Test {
  protected:
    void build(const test::ProjectBuilder& builder) { files_ = builder.build(folder_.path()); }
    void open(const test::ProjectBuilder& builder) {
        build(builder);
        files_.openIn(project_);
    }

    test::TempFolder folder_;
    test::TestProject files_;
    Project project_;
};

}  // namespace quorvel::store
