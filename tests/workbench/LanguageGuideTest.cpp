#include <catch2/catch.hpp>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <utility>

#include <wx/utils.h>

#include "workbench/Recorder.h"
#include "workbench/SampleFolder.h"
#include "workbench/Scratch.h"
#include "workbench/engine/Workspace.h"
#include "workbench/outside/Installed.h"
#include "workbench/script/Commands.h"
#include "workbench/script/Interpreter.h"

namespace
{
std::string Guide()
{
    wxString root;
    REQUIRE(wxGetEnv("ZENQO_SOURCE_DIR", &root));
    return ReadFile(root.ToStdString() + "/docs/script-language.md");
}

/// The examples of the guide in their order.
std::vector<std::string> Examples(std::string const& guide)
{
    std::vector<std::string> examples;
    bool inside = false;
    std::istringstream lines(guide);
    for (std::string line; std::getline(lines, line);)
    {
        if (line == "```zqs")
            examples.emplace_back();
        else if (inside && line != "```")
            examples.back() += line + "\n";
        inside = line == "```zqs" || (inside && line != "```");
    }
    return examples;
}

/// Whether an example needs a program that isn't installed.
bool NeedsMissing(std::string const& example)
{
    static std::pair<char const*, char const*> const needs[] = {
        {"jags(", "jags"}, {"octave(", "octave"}, {"rproject(", "R"}};
    return std::any_of(
        std::begin(needs), std::end(needs), [&](auto const& need)
        { return example.find(need.first) != std::string::npos && IsMissing(need.second); });
}
} // namespace

TEST_CASE("the examples of the language guide run")
{
    SampleFolder const samples;
    workbench::Workspace workspace;
    Recorder output;
    workbench::Progress progress;
    workbench::Interpreter interpreter(workspace, output, progress);
    auto const examples = Examples(Guide());
    CHECK(examples.size() == 26);
    for (auto const& example : examples)
    {
        INFO(example);
        if (NeedsMissing(example))
            continue;
        CHECK(interpreter.Run(example, workbench::Interpreter::Echo::None));
    }
    CHECK(output.errors.empty());
    CHECK(output.warnings.empty());
}

TEST_CASE("the language guide tells of every command, with its use and an example")
{
    auto const guide = Guide();
    std::string examples;
    for (auto const& example : Examples(guide))
        examples += example;
    for (auto const& command : workbench::Commands())
    {
        INFO(command.name);
        CHECK(guide.find("\n### " + command.name + "\n\n`" + command.Usage() + "` ")
              != std::string::npos);
        CHECK(examples.find(command.name + "(") != std::string::npos);
        CHECK_FALSE(command.help.empty());
        CHECK(command.help.back() == '.');
    }
    CHECK(std::is_sorted(workbench::Commands().begin(), workbench::Commands().end(),
                         [](auto const& a, auto const& b) { return a.name < b.name; }));
}
