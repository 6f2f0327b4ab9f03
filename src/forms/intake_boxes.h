/// What the gate for chosen files asks and tells, as boxes and windows.
#pragma once

#include <memory>

#include <QElapsedTimer>

#include "forms/boxes.h"
#include "forms/standing_form.h"
#include "resources/intake.h"

class QProgressBar;

namespace quorvel::forms {

/// Shows how far a long copy is.
class CopyingFile : public StandingForm {
    Q_OBJECT
  public:
    CopyingFile(const QString& name, QWidget* parent);
    void show(std::uintmax_t done, std::uintmax_t total);
    [[nodiscard]] bool isWorking() const override { return true; }

  private:
    QProgressBar* bar_;
};

/// `boxes` must outlive it.
class IntakeBoxes : public resources::IntakeQuestions {
  public:
    explicit IntakeBoxes(Boxes& boxes) : boxes_(boxes) {}

    void tell(const resources::IntakeNotice& notice) override;
    bool mayReplace(const QString& name) override;
    bool useShorter(const QString& name, const QString& shorter) override;
    resources::Pick copyOrMove() override;
    /// A copy that takes longer than `patience` shows how far it is.
    void working(const QString& name, std::uintmax_t done, std::uintmax_t total) override;

    /// In milliseconds.
    int patience = 500;

  private:
    Boxes& boxes_;
    QElapsedTimer clock_;
    std::unique_ptr<CopyingFile> progress_;
};

/// What is wrong with a name, as a sentence.
QString reasonOf(resources::NameFault fault);

/// The box that tells `notice`.
Box boxOf(const resources::IntakeNotice& notice);

}  // namespace quorvel::forms
