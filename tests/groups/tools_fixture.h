/// What property windows are given from outside, with a project open in a real editor.
#pragma once

#include "groups/sheet.h"
#include "support/windows/project_fixture.h"

namespace quorvel::test {

class ToolsFixture : public ProjectFixture {
  protected:
    /// Opens the project of `builder`.
    void open(const ProjectBuilder& builder) {
        ProjectFixture::open(builder);
        models = std::make_unique<forms::ProjectListModels>(shell->project().lists);
        models->refresh();
        tools = std::make_unique<groups::Tools>(groups::Tools{.project = shell->project(),
                                                              .scene = shell->scene(),
                                                              .boxes = boxes,
                                                              .files = shell->fileChoice(),
                                                              .preview = shell->preview(),
                                                              .pictures = pictures,
                                                              .lists = *models,
                                                              .beep = [this] { ++beeps; }});
    }
    forms::PictureStore pictures;
    std::unique_ptr<forms::ProjectListModels> models;
    std::unique_ptr<groups::Tools> tools;
};

}  // namespace quorvel::test
