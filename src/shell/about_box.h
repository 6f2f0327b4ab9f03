/// The About box, and the system's own program that tells about the system.
#pragma once

#include <functional>

#include "forms/boxes.h"
#include "forms/form.h"
#include "resources/programs.h"

namespace quorvel::shell {

/// Reads the text of value `name` in the machine's registry under `key`; empty when there is none,
/// or no registry.
using MachineValue = std::function<QString(const QString& key, const QString& name)>;

/// The values of this machine.
QString readMachineValue(const QString& key, const QString& name);

/// The path of the program that tells about the system, or an empty text when there is none.
QString findSystemInfo(const MachineValue& machineValue);

class frmAbout : public forms::Form {
    Q_OBJECT
  public:
    /// `boxes` and `programs` must outlive the window.
    frmAbout(forms::Boxes& boxes, resources::Programs& programs, MachineValue machineValue,
             QWidget* parent);

  private:
    void cmdSysInfo_Click();

    forms::Boxes& boxes_;
    resources::Programs& programs_;
    MachineValue machineValue_;
};

}  // namespace quorvel::shell
