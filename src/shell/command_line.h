/// What the editor is started with.
#pragma once

#include <cstdint>
#include <vector>

#include <QString>
#include <QStringList>

namespace quorvel::shell {

struct CommandLine {
    enum class Wish : std::uint8_t {
        run,
        help,
        version,
        unknownOption,  ///< `unknown` names it
    };
    Wish wish = Wish::run;
    QString unknown;
    std::vector<char*> toolkit;  ///< the program's name and the options of the toolkit
    QStringList projects;        ///< what is no option, and all that follows "--"
};

/// Reads `argv`, which must outlive the result. Nothing has to be there yet, no display either.
CommandLine readCommandLine(int argc, char** argv);

/// What `--help` and `--version` write.
QString usageText();
QString versionText();

}  // namespace quorvel::shell
