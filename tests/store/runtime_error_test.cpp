#include "store/runtime_error.h"

#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>

namespace quorvel::store {
namespace {

TEST(RuntimeError, CarriesNumberDescriptionAndFile) {
    const RuntimeError error(ErrorNumber::accessError, "resource/Quorvel1.dat");
    EXPECT_EQ(error.number(), 75);
    EXPECT_EQ(error.code(), ErrorNumber::accessError);
    EXPECT_EQ(error.description(), "Path/File access error");
    EXPECT_STREQ(error.what(), "Path/File access error");
    EXPECT_EQ(error.file(), "resource/Quorvel1.dat");
    EXPECT_TRUE(RuntimeError(ErrorNumber::overflow).file().empty());
}

TEST(RuntimeError, EveryNumberHasItsDescription) {
    const std::pair<int, const char*> all[] = {
        {6, "Overflow"},           {52, "Bad file name or number"}, {53, "File not found"},
        {57, "Device I/O error"},  {58, "File already exists"},     {61, "Disk full"},
        {63, "Bad record number"}, {67, "Too many files"},          {75, "Path/File access error"},
        {76, "Path not found"},    {481, "Invalid picture"},
    };
    for (const auto& [number, text] : all) {
        EXPECT_EQ(describe(static_cast<ErrorNumber>(number)), text);
    }
    EXPECT_EQ(describe(static_cast<ErrorNumber>(9999)), "Unknown error");
}

TEST(RuntimeError, StandsForTheErrorsOfTheSystem) {
    const std::pair<int, ErrorNumber> all[] = {
        {ENOENT, ErrorNumber::fileNotFound}, {ENOTDIR, ErrorNumber::pathNotFound},
        {EACCES, ErrorNumber::accessError},  {EPERM, ErrorNumber::accessError},
        {EROFS, ErrorNumber::accessError},   {EISDIR, ErrorNumber::accessError},
        {ETXTBSY, ErrorNumber::accessError}, {ENOSPC, ErrorNumber::diskFull},
        {EFBIG, ErrorNumber::diskFull},      {EMFILE, ErrorNumber::tooManyFiles},
        {ENFILE, ErrorNumber::tooManyFiles}, {ENAMETOOLONG, ErrorNumber::badFileName},
        {EBADF, ErrorNumber::badFileName},   {EINVAL, ErrorNumber::badFileName},
        {EEXIST, ErrorNumber::fileExists},   {EIO, ErrorNumber::deviceError},
#ifdef EDQUOT
        {EDQUOT, ErrorNumber::diskFull},
#endif
    };
    for (const auto& [systemError, number] : all) {
        EXPECT_EQ(errorNumberOf({systemError, std::generic_category()}), number)
            << std::strerror(systemError);
        EXPECT_EQ(errorNumberOf({systemError, std::system_category()}), number)
            << std::strerror(systemError);
    }
}

}  // namespace
}  // namespace quorvel::store
