/// The whole editor with a project open on its canvas.
#pragma once

#include <QComboBox>
#include <QPushButton>

#include "forms/form.h"
#include "support/windows/shell_fixture.h"

namespace quorvel::test {

class ProjectFixture : public ShellFixture {
  protected:
    /// Builds the project and starts the editor with it.
    void open(const ProjectBuilder& builder) { openIn(projects.path(), builder); }
    void openIn(const std::filesystem::path& folder, const ProjectBuilder& builder) {
        files = builder.build(folder);
        start({text(files.projectPath())});
    }

    // What stands in the main window.
    QWidget& element(const QString& name) { return control<QWidget>(main(), name); }
    QWidget& element(const char* name, int index) {
        return element(forms::elementName(QString::fromLatin1(name), index));
    }
    QWidget& animation(int k) { return element("Animation", k); }
    QWidget& quickSpot(int k) { return element("NoGIF", k); }
    QWidget& link(int n) { return element("Directionl", n); }
    QWidget& ghost() { return element(QStringLiteral("DragGhost")); }
    QPushButton& button(const char* name) {
        return control<QPushButton>(main(), QString::fromLatin1(name));
    }
    QComboBox& list(const char* name) {
        return control<QComboBox>(main(), QString::fromLatin1(name));
    }

    canvas::Dragging& dragging() { return shell->actions().dragging(); }
    store::ObjectSlot& slot(int k) { return shell->scene().slot(k); }

    TestProject files;
};

}  // namespace quorvel::test
