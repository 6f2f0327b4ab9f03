/// The one single-byte code page of every record, windows-1252, and the text rules of the fields.
///
/// In memory text is UTF-8. All 256 byte values survive a round trip: the five bytes that the page
/// leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of the same
/// number.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace quorvel::store {

/// The UTF-8 text of `bytes`, every byte one character; nothing is trimmed.
std::string decodeText(std::string_view bytes);

/// The bytes of `utf8` in the code page. A character outside the page, and every byte that is not
/// well-formed UTF-8, becomes "?".
std::string encodeText(std::string_view utf8);

/// True when `encodeText` loses nothing of `utf8`.
bool fitsCodePage(std::string_view utf8);

/// `text` without the blanks (0x20, no other white space) at both ends.
std::string_view trimBlanks(std::string_view text);

/// The text of a field's bytes: trimmed of blanks, and empty when every byte is zero, as in a
/// record that was never written.
std::string readField(std::string_view bytes);

/// Puts `utf8` into a field: cut to the field's width without a message, padded with blanks.
void writeField(std::span<char> field, std::string_view utf8);

}  // namespace quorvel::store
