/// Writes docs/formats.md, the page about the project files, from the record descriptions of the
/// store. Without an argument the page goes to the standard output, with one into that file.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "store/objects.h"
#include "store/records.h"

namespace {

using quorvel::store::allRecords;
using quorvel::store::elementName;
using quorvel::store::FieldInfo;
using quorvel::store::FieldRows;
using quorvel::store::FieldTest;
using quorvel::store::FieldTraits;
using quorvel::store::FieldUse;
using quorvel::store::kObjectTypes;
using quorvel::store::ObjectFieldInfo;
using quorvel::store::ObjectType;
using quorvel::store::RecordInfo;

constexpr std::string_view kIntroduction = R"(# The files of a Quorvel project

This page is for people who write a player, a converter or another tool that reads or writes the
files of a project. It is made from the record descriptions in `src/store/defs`; do not edit it by
hand. `cmake --build <build folder> --target renew_formats_page` writes it anew.

A project is one project file, `<name>.qvl`, and beside it a folder `resource`:

```
MyGame/
    MyGame.qvl               the project file
    Game.exe                 the player
    resource/
        Quorvel1.dat         scenes
        Quorvel2.dat         locations of the map
        Quorvel3.dat         inventory items
        Quorvel4.dat         game settings
        Quorvel5.dat         cue cards
        gfx/                 pictures and animations
        mmedia/              sounds, music and movies
```

## Conventions

**Records.** Each file is a row of records of one length, without header and trailer. Record
numbers begin at 1: record *n* lies at byte (*n* - 1) × length. The number is the record's
identity. Scene 7 is record 7 of the scene store, and a link with target 7 leads to it; nothing is
ever moved or taken out.

**Count.** How many records a file holds follows from its length alone: length of the file divided
by the length of a record, rounded to the nearest whole number (a half goes to the even one). The
counts in the project file are a copy. No store holds more than 32767 records.

**Beyond the end.** A record that is not there reads as zero bytes; of a record that is there in
part the rest is zero bytes. Reading never makes a file longer.

**No padding.** The fields of a record follow one another without gaps, so odd offsets are normal.

**Numbers** (`int16`) are signed 16-bit integers, the low byte first. Check boxes are 0 and 1.

**Texts** (`text` *n*) have a fixed width of *n* bytes in the code page windows-1252. They begin at
the left and are filled up with blanks (0x20); there is no terminator and no length. A reader takes
the blanks off both ends. A text of zero bytes alone counts as empty too. The five bytes that the
code page leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of the
same number, so every byte can be read and written back. A longer text is cut when it is written.

**File names** are bare names without a folder, at most 15 characters with the extension. Pictures
and animations are looked up in `resource/gfx`, sounds and movies in `resource/mmedia`, in any
letter case.

**Runs.** "5 × text 15" is five such fields one after the other, the first at the given offset.

**Holds** says which values a field may have. A number in a field of text is a decimal number, and
an empty text is 0. "while ... is not 0" tells when the field has an effect: what it holds is kept
while that is off. The volume of a WAV and that of a movie are two scales; where a field takes both,
the file's last three letters settle which one it is.

**Reserved** fields have no meaning to the editor. A tool that changes a record keeps them.

**New value** is what the editor writes into a fresh record: *blank* is a text of blanks, *zero
bytes* a text that was never set.

## The security code

The project file and record 1 of each of the five stores hold the same number, the security code.
It is 0 in all six while project security is off, and 1 to 5000 while it is on. The editor opens a
project only when all six agree; item and card stores without a record agree with any code. While a
project is being edited, record 1 of a store may hold 0 for a time: the codes are written when the
project is closed. A tool that writes record 1 of a store has to keep its code.

## The records

)";

/// Text of a table's cell: what Markdown or a browser would take for markup is made harmless.
std::string cell(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '<') {
            out += "&lt;";
        } else if (c == '>') {
            out += "&gt;";
        } else if (c == '|' || c == '*' || c == '_') {
            out += std::string{'\\', c};
        } else {
            out += c;
        }
    }
    return out;
}

std::string code(std::string_view text) {
    return "`" + std::string(text) + "`";
}

std::string typeOf(const FieldInfo& field) {
    std::string type = field.kind == FieldInfo::Kind::number ? "int16"
                       : field.kind == FieldInfo::Kind::text ? "text " + std::to_string(field.width)
                                                             : "ObjectSlot";
    return field.count > 1 ? std::to_string(field.count) + " × " + type : type;
}

/// A run that bears its numbers in its name is shown by its first and last element.
std::string nameOf(const FieldInfo& field) {
    const std::string first = elementName(field, 0);
    if (first.starts_with(field.name) || field.count == 1) {
        return code(field.name);
    }
    return code(first) + " to " + code(elementName(field, field.count - 1));
}

std::string newTextOf(std::string_view text) {
    return text.empty() ? "*blank*" : "\"" + cell(text) + "\"";
}

std::string newValueOf(const FieldInfo& field) {
    if (field.kind == FieldInfo::Kind::slots) {
        return "free slots";
    }
    if (field.kind == FieldInfo::Kind::number) {
        return field.name == "SlotInt31To36" ? "number of the slot"
                                             : std::to_string(field.newNumber);
    }
    if (field.newTextCount == 0) {
        return "*zero bytes*";
    }
    std::string values;
    for (int i = 0; i < field.newTextCount; ++i) {
        values += (i > 0 ? ", " : "") + newTextOf(field.newTexts[static_cast<std::size_t>(i)]);
    }
    return values;
}

std::string headingOf(const RecordInfo& record) {
    return std::string(record.name);
}

void printOverview(std::ostream& out) {
    out << "| Record | Where | Bytes |\n| --- | --- | ---: |\n";
    for (const RecordInfo& record : allRecords()) {
        const std::string anchor = "#" + headingOf(record);
        std::string lower;
        for (const char c : anchor) {
            lower += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        }
        const bool isFile = record.file.find(' ') == std::string_view::npos;
        out << "| [" << record.name << "](" << lower << ") | "
            << (isFile ? code(record.file) : cell(record.file)) << " | " << record.length << " |\n";
    }
}

/// What a field holds, for somebody who reads it.
std::string_view rangeOf(FieldUse use) {
    switch (use) {
        case FieldUse::text:
            return "free text";
        case FieldUse::place:
            return "place `x/y` in pixels";
        case FieldUse::placeOrFile:
            return "place `x/y` in pixels; in old settings a file in `resource/gfx`";
        case FieldUse::gfxFile:
            return "file in `resource/gfx`";
        case FieldUse::mapIconFile:
            return "file in `resource/gfx`, `(None)` for none, `Del` for a removed location";
        case FieldUse::mediaFile:
            return "file in `resource/mmedia`";
        case FieldUse::soundtrackFile:
            return "file in `resource/mmedia`, or `(Stop Sndtrk)`, which ends the soundtrack";
        case FieldUse::logoFile:
            return "GIF in `resource/gfx`, or movie in `resource/mmedia`";
        case FieldUse::playerName:
            return "program in the project folder, without `.exe`";
        case FieldUse::check:
            return "0 or 1";
        case FieldUse::option:
            return "number of an option, from 1";
        case FieldUse::optionFrom0:
            return "number of an option, from 0";
        case FieldUse::scene:
            return "scene, 0 for none";
        case FieldUse::item:
            return "item, 0 for none";
        case FieldUse::location:
            return "location, 0 for none";
        case FieldUse::card:
            return "cue card, 0 for none";
        case FieldUse::pointer:
            return "index of a mouse pointer, 0 is the normal one";
        case FieldUse::channel:
            return "sound channel: 0 automatic, 1 to 13, 14 persistent, 15 dialogue";
        case FieldUse::flag:
            return "flag, 1 to 255";
        case FieldUse::comparison:
            return "0 =, 1 <>, 2 <, 3 >";
        case FieldUse::value:
            return "any number";
        case FieldUse::pixels:
            return "pixels";
        case FieldUse::volume:
            return "-4000 to 0, 0 is full";
        case FieldUse::movieVolume:
            return "0 to 100; more counts as 100";
        case FieldUse::mediaVolume:
            return "-4000 to 0 for a WAV, 0 to 100 for any other file";
        case FieldUse::pan:
            return "-4000 left to 4000 right";
        case FieldUse::seconds:
            return "0 to 65";
        case FieldUse::objectType:
            return "type of the object";
        case FieldUse::count:
            return "number of records";
        case FieldUse::version:
            return "version";
        case FieldUse::securityCode:
            return "security code, 0 is off";
        case FieldUse::byType:
            return "by the type of the object";
        case FieldUse::objects:
            return "objects";
        case FieldUse::reserved:
            return "reserved";
    }
    return "";
}

/// What the cell says of the values; a number in a text is told.
std::string holdsOf(const FieldTraits& traits, bool isText) {
    const bool asText = isText && traits.use >= FieldUse::check &&
                        traits.use < FieldUse::reserved && traits.use != FieldUse::byType;
    return cell(rangeOf(traits.use)) + (asText ? ", as text" : "");
}

std::string testOf(const FieldTest& test) {
    const std::string name = code(test.field);
    const std::string low = std::to_string(test.low);
    if (test.low != test.high) {
        return name + " is " + low + " to " + std::to_string(test.high);
    }
    if (test.inside) {
        return name + " is " + low;
    }
    return name + (test.low == 0 ? " is not 0" : " is not " + low);
}

/// The meaning, followed by the file of a volume and by what switches the field on.
std::string meaningOf(const FieldTraits& traits, std::string_view meaning) {
    std::vector<std::string> parts;
    constexpr std::string_view its = "its ";
    const bool isIts = !traits.file.empty() && meaning.starts_with(its);
    std::string first = cell(isIts ? meaning.substr(its.size()) : meaning);
    if (!traits.file.empty()) {
        first += (first.empty() ? "of " : isIts ? " of " : "; of ") + code(traits.file);
    }
    if (!first.empty()) {
        parts.push_back(first);
    }
    if (!traits.when.either.field.empty()) {
        std::string test = "while " + testOf(traits.when.either);
        if (!traits.when.other.field.empty()) {
            test += " or " + testOf(traits.when.other);
        }
        parts.push_back(test);
    }
    std::string out;
    for (const std::string& part : parts) {
        out += (out.empty() ? "" : "; ") + part;
    }
    return out;
}

void printRecord(std::ostream& out, const RecordInfo& record) {
    out << "\n### " << headingOf(record) << "\n\n"
        << record.about << "\n\n"
        << record.length << " bytes.\n\n"
        << "| Offset | Type | Field | Holds | Meaning | New value |\n"
        << "| ---: | --- | --- | --- | --- | --- |\n";
    for (const FieldInfo& field : record.fields) {
        const bool isText = field.kind == FieldInfo::Kind::text;
        out << "| " << field.offset << " | " << typeOf(field) << " | " << nameOf(field) << " | "
            << holdsOf(field, isText) << " | " << meaningOf(field, field.meaning) << " | "
            << newValueOf(field) << " |\n";
    }
}

/// The field's place in the slot; of rows of equal fields the places in all of them.
std::string slotFieldOf(const ObjectFieldInfo& field, const FieldRows& rows) {
    std::string places;
    for (int row = 0; row < std::max(rows.count, 1); ++row) {
        places += (row > 0 ? ", " : "") + code((field.isText ? "SlotStr" : "SlotInt") +
                                               std::to_string(field.number + row * rows.stride));
    }
    return places;
}

void printObjectType(std::ostream& out, ObjectType type) {
    out << "\n### " << static_cast<int>(type) << ": " << quorvel::store::typeName(type) << "\n\n"
        << "| Field | Name | Holds | Meaning | At insertion |\n| --- | --- | --- | --- | --- |\n";
    FieldRows rows;
    for (const ObjectFieldInfo& field : quorvel::store::describedFields(type)) {
        if (field.name.empty()) {
            rows = field.rows;
            out << "| | | | *" << cell(field.meaning) << ":* | |\n";
            continue;
        }
        out << "| " << slotFieldOf(field, rows) << " | " << field.name << " | "
            << holdsOf(field, field.isText) << " | " << meaningOf(field, field.meaning) << " | "
            << (field.isText ? newTextOf(field.newText) : std::to_string(field.newNumber))
            << " |\n";
    }
}

constexpr std::string_view kObjects = R"(
## Objects by type

What the fields of an `ObjectSlot` mean depends on the type in `SlotInt1`. `SlotInt2` and `SlotInt3` are
the place of every type. A field that a type does not list is 0 or blank after an insertion, but
`SlotInt30` to `SlotInt36`, which keep what the new record gave them. A type that is not listed here
was made by a newer version: such an object is kept as it is.
)";

void printObjects(std::ostream& out) {
    out << kObjects;
    for (int type = 0; type < kObjectTypes; ++type) {
        printObjectType(out, static_cast<ObjectType>(type));
    }
}

void printPage(std::ostream& out) {
    out << kIntroduction;
    printOverview(out);
    for (const RecordInfo& record : allRecords()) {
        printRecord(out, record);
    }
    printObjects(out);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        printPage(std::cout);
        return std::cout.flush() ? 0 : 1;
    }
    std::ofstream file(argv[1], std::ios::binary);
    printPage(file);
    file.close();
    if (!file) {
        std::cerr << "cannot write " << argv[1] << "\n";
        return 1;
    }
    return 0;
}
