/// A scene view on a project of its own.
#pragma once

#include <gtest/gtest.h>

#include "canvas/scene_view.h"
#include "forms/form.h"
#include "forms/pictures.h"
#include "store/project.h"
#include "store/scene.h"
#include "store/scene_store.h"
#include "support/file_bytes.h"
#include "support/gif_bytes.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"

namespace quorvel::canvas {

class CanvasTest : public testing::Test {
  protected:
    /// Builds the project as `builder_` describes it, opens it and shows scene `number`.
    void open(int number = 1) {
        files_ = builder_.build(folder_.path());
        files_.openIn(project_);
        project_.ProjectOpen = true;
        enter(number);
    }

    /// What going to a scene does, but for the shell's half.
    void enter(int number) {
        view_.ClearCanvas();
        store::LoadScene(project_, scene_, number);
        view_.ShowSceneObjects();
    }

    void save() {
        view_.StoreLinkPlaces();
        store::SaveScene(project_, scene_, project_.CurrentScene);
    }

    /// A child by the system's name, the view itself included.
    template <class Widget = QWidget>
    [[nodiscard]] Widget* child(const char* name) const {
        auto* widget = view_.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    template <class Widget = QWidget>
    [[nodiscard]] Widget* child(const char* name, int index) const {
        return child<Widget>(
            forms::elementName(QString::fromLatin1(name), index).toLatin1().constData());
    }
    [[nodiscard]] PictureElement& animation(int k) const {
        return *child<PictureElement>("Animation", k);
    }
    [[nodiscard]] SceneElement& quickSpot(int k) const { return *child<SceneElement>("NoGIF", k); }
    [[nodiscard]] LinkElement& link(int n) const { return *child<LinkElement>("Directionl", n); }
    [[nodiscard]] QWidget& border(int k) const { return *child("hilite", k); }
    [[nodiscard]] QWidget& linkBorder(int n) const { return *child("Shape2", n); }

    /// True when the element shows this stock picture.
    [[nodiscard]] bool showsStock(int k, const char* name) {
        return animation(k).isShown() &&
               animation(k).picture() == pictures_.stock(QString::fromLatin1(name));
    }

    test::TempFolder folder_;
    test::ProjectBuilder builder_;
    test::TestProject files_;
    store::Project project_;
    store::Scene scene_;
    forms::PictureStore pictures_;
    SceneView view_{project_, scene_, pictures_, nullptr};
};

}  // namespace quorvel::canvas
