/// Which file names a project can hold. The records keep a bare name of 15 characters in
/// windows-1252, and the player opens it on Windows.
#pragma once

#include <cstdint>
#include <functional>

#include <QString>

namespace quorvel::resources {

/// The longest name that a file field holds, with the ending, in characters.
inline constexpr int kLongestFileName = 15;

/// What keeps a name of permitted length out of a project.
enum class NameFault : std::uint8_t {
    none,
    empty,
    outsideCodePage,    ///< a character that windows-1252 lacks
    reservedCharacter,  ///< one of < > : " / \ | ? * or a control character
    blankAtAnEnd,       ///< fields lose blanks at both ends, Windows those at the end of a name
    dotAtTheEnd,
    deviceName,  ///< CON, NUL, COM1 and their like, with or without an ending
};

/// A name that a field can hold, made of one that is too long: the same ending, and of the rest the
/// beginning, at most eleven characters, what cannot stand in a name being "_". Where that name is
/// not free, its end is a number from 2 on. Empty when there is no such name.
QString shorterName(const QString& name, const std::function<bool(const QString&)>& isFree);

/// The first fault of the bare name `name`; its length is not looked at.
NameFault nameFault(const QString& name);

}  // namespace quorvel::resources
