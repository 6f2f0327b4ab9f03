/// What the controls of a property window do to the record that it edits, control by control.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quorvel::test {

/// The fields of a record by name, as text.
using Fields = std::map<std::string, std::string>;

/// What follows the change of a control: `then` are the fields after it, `before` before it.
using Follows = std::function<void(const Fields& before, Fields& then)>;

/// What one control does when the author changes it.
struct Effect {
    std::string field;  ///< the control's own
    /// What the field holds then. Without it: another value than before.
    std::optional<std::string> value = {};
    Fields sets = {};      ///< other fields, and what they hold then
    Follows follows = {};  ///< other fields, where it depends
    /// Where the control asks for a file, the folder of `value`.
    enum class File : std::uint8_t { none, gfx, mmedia } file = File::none;
};

/// The fields and the controls of groups.
struct TestFields {
    std::string flag;
    std::string comparison;
    std::string value;
};
struct TestBoxes {
    std::string flag = "FlagID(0)";
    std::string comparison = "Combo2";
    std::string value = "Text3(0)";
};
struct SetFields {
    std::string on;
    std::string flag;
    std::string value;
    std::string add;
};
struct SetBoxes {
    std::string on = "Check3";
    std::string flag = "FlagID(1)";
    std::string value = "Text3(1)";
    std::string add = "Check4";
};
struct SoundFields {
    std::string file;
    std::string volume;
    std::string pan;
    std::string channel = {};  ///< empty for none
};

/// One for each window. It names every input control of the window once: either what it does, or
/// why it does nothing by itself.
class SweepTable {
  public:
    void add(const std::string& control, Effect effect);
    /// A control that changes no field, for a reason that is told.
    void leave(const std::string& control, const std::string& reason);

    // Whole groups, in the order of src/groups. `ticks` is what the use of a group sets besides.

    /// Options `first` to `last` of a control array.
    void options(const std::string& array, int first, int last, const std::string& field);
    void flagTest(const TestFields& fields, const Fields& ticks, const TestBoxes& boxes = {});
    void flagSet(const SetFields& fields, const SetBoxes& boxes = {});
    /// `chosen` is a file that the author can choose.
    void sound(int k, const SoundFields& fields, const std::string& chosen,
               const Fields& ticks = {});
    /// Movie `k` with its volume.
    void movie(int k, const std::string& file, const std::string& volume,
               const std::string& chosen);
    /// A list whose entry "(None)" clears `check` and whose others tick it.
    void tickedList(const std::string& list, const std::string& field, const std::string& check);

    [[nodiscard]] const std::map<std::string, Effect>& effects() const { return effects_; }
    [[nodiscard]] const std::map<std::string, std::string>& left() const { return left_; }
    /// What is wrong with the table itself, such as a control that is named twice.
    [[nodiscard]] const std::vector<std::string>& faults() const { return faults_; }

  private:
    void enter(const std::string& control);

    std::map<std::string, Effect> effects_;
    std::map<std::string, std::string> left_;
    std::vector<std::string> faults_;
};

/// The name of an element of a control array.
std::string element(const std::string& array, int index);

}  // namespace quorvel::test
