#include "shell/command_line.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

#include "resources/path_text.h"
#include "shell/editor_settings.h"

namespace quorvel::shell {
namespace {

using namespace std::string_view_literals;

// The toolkit takes its options with one dash or with two.
constexpr std::array kToolkitValues = {"platform"sv,
                                       "platformpluginpath"sv,
                                       "platformtheme"sv,
                                       "plugin"sv,
                                       "style"sv,
                                       "stylesheet"sv,
                                       "session"sv,
                                       "display"sv,
                                       "geometry"sv,
                                       "name"sv,
                                       "qwindowgeometry"sv,
                                       "qwindowtitle"sv,
                                       "qwindowicon"sv,
                                       "title"sv,
                                       "icon"sv,
                                       "qmljsdebugger"sv};
constexpr std::array kToolkitSwitches = {"reverse"sv, "widgetcount"sv, "nograb"sv, "dograb"sv};
/// Those that may bear their value behind "=".
constexpr std::array kToolkitPairs = {"style"sv, "stylesheet"sv, "qmljsdebugger"sv};

template <class Names>
bool holds(const Names& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The name of an option without its dashes.
std::string_view bare(std::string_view argument) {
    argument.remove_prefix(argument.starts_with("--") ? 2 : 1);
    return argument;
}

bool isToolkitSwitch(std::string_view name) {
    const auto sign = name.find('=');
    return holds(kToolkitSwitches, name) ||
           (sign != std::string_view::npos && holds(kToolkitPairs, name.substr(0, sign)));
}

}  // namespace

CommandLine readCommandLine(int argc, char** argv) {
    CommandLine line;
    int next = 0;
    if (argc > 0) {
        line.toolkit.push_back(argv[next++]);
    }
    bool onlyProjects = false;
    while (next < argc) {
        char* const given = argv[next++];
        const std::string_view argument = given;
        if (onlyProjects || !argument.starts_with('-') || argument == "-") {
            line.projects << resources::pathText(std::filesystem::path(argument));
        } else if (argument == "--") {
            onlyProjects = true;
        } else if (argument == "--help" || argument == "-h") {
            line.wish = CommandLine::Wish::help;
            return line;
        } else if (argument == "--version" || argument == "-v") {
            line.wish = CommandLine::Wish::version;
            return line;
        } else if (isToolkitSwitch(bare(argument))) {
            line.toolkit.push_back(given);
        } else if (holds(kToolkitValues, bare(argument)) && next < argc) {
            line.toolkit.push_back(given);
            line.toolkit.push_back(argv[next++]);
        } else {
            line.wish = CommandLine::Wish::unknownOption;
            line.unknown = resources::pathText(std::filesystem::path(argument));
            return line;
        }
    }
    return line;
}

QString usageText() {
    return QStringLiteral(
        "usage: quorvel [options] [--] [project.qvl ...]\n"
        "\n"
        "Opens the editor for point-and-click adventure games, with the project that is named; of\n"
        "several the last one stays open. If the editor runs already, that one opens them.\n"
        "\n"
        "  -h, --help     show this text and end\n"
        "  -v, --version  show the version and end\n"
        "  --             what follows is a project, whatever it begins with\n"
        "\n"
        "Options of the toolkit, such as -platform and -style, are taken too.\n");
}

QString versionText() {
    return QStringLiteral("Quorvel ") + kEditorVersion + QLatin1Char('\n');
}

}  // namespace quorvel::shell
