#include <catch2/catch.hpp>

#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

#include "console/ConsoleFixture.h"

namespace
{
/// Everything that a process writes on standard output.
std::string OutputOf(char const* command)
{
    std::string output;
    std::FILE* const pipe = popen(command, "r");
    REQUIRE(pipe);
    char buffer[4096];
    for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        output.append(buffer, got);
    pclose(pipe);
    return output;
}

/// The output cut into its pieces by the lines that begin with "@".
std::map<std::string, std::string> PiecesOf(std::string const& output)
{
    std::map<std::string, std::string> pieces;
    std::istringstream stream(output);
    std::string name;
    for (std::string line; std::getline(stream, line);)
    {
        if (!line.empty() && line[0] == '@')
            name = line.substr(1);
        else
            pieces[name] += line + "\n";
    }
    for (auto& piece : pieces)
        piece.second.pop_back();
    return pieces;
}

/// Takes what goes to standard output and counts the flushes.
class CountingBuffer : public std::stringbuf
{
public:
    CountingBuffer() : m_before(std::cout.rdbuf(this)) {}
    ~CountingBuffer() override { std::cout.rdbuf(m_before); }
    int Flushes() const { return m_flushes; }

protected:
    int sync() override
    {
        ++m_flushes;
        return 0;
    }

private:
    std::streambuf* m_before;
    int m_flushes = 0;
};

int FlushesOf(std::function<void()> const& print)
{
    CountingBuffer buffer;
    print();
    return buffer.Flushes();
}
} // namespace

TEST_CASE("in text mode every byte on a process's standard output is as told")
{
    auto const pieces = PiecesOf(OutputOf("\"" TEXT_MODE_PRINTER "\" 2>/dev/null"));
    REQUIRE(pieces.size() == 21);
    CHECK(pieces.at("string") == "b\xC3\xA9ta");
    CHECK(pieces.at("int") == "-7");
    CHECK(pieces.at("double") == "1.23457e+06");
    CHECK(pieces.at("wide") == "b\xC3\xA9ta");
    CHECK(pieces.at("newline") == "\n");
    CHECK(pieces.at("colour") == "c");
    CHECK(pieces.at("background") == "bg");
    CHECK(pieces.at("bold") == "bf");
    CHECK(pieces.at("error") == "\n\nERROR: e\n");
    CHECK(pieces.at("warning") == "\n\nWARNING: <w|true>\n");
    CHECK(pieces.at("code") == "\n >> print(d);\n\n");
    CHECK(pieces.at("rule") == std::string(92, '-') + "\n");
    CHECK(pieces.at("coloured rule") == std::string(92, '-') + "\n");
    CHECK(pieces.at("model") == "\n\nm");
    CHECK(pieces.at("model with detail") == "\n\nt:d");
    CHECK(pieces.at("terminal") == "t");
    CHECK(pieces.at("clear") == "");
    CHECK(pieces.at("last point") == "");
    CHECK(pieces.at("exit") == "");

    std::string rows;
    for (int i = 0; i < 700; ++i)
        rows += (i ? "\n" : "") + std::string(i < 10 ? "  " : i < 100 ? " " : "") + std::to_string(i);
    CHECK(pieces.at("matrix") == rows + "\n\n");
}

TEST_CASE("the banner in text mode is a figure of seven lines, name and version behind it")
{
    auto const pieces = PiecesOf(OutputOf("\"" TEXT_MODE_PRINTER "\" 2>/dev/null"));
    std::istringstream banner(pieces.at("startup"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(banner, line);)
        lines.push_back(line);
    REQUIRE(lines.size() == 10);
    for (int i = 0; i < 6; ++i)
    {
        INFO(lines[i]);
        CHECK(lines[i].find_first_not_of(" _|/\\") == std::string::npos);
        CHECK(lines[i].find_first_not_of(' ') != std::string::npos);
    }
    CHECK(lines[6] == "          /     Zenqo Statistical Workbench  ");
    CHECK(lines[7] == "                Running Version 2.5");
    CHECK(lines[8] == "");
    CHECK(lines[9] == "");
    CHECK(pieces.at("startup").back() == '\n');
}

TEST_CASE("a process in text mode writes nothing on standard error")
{
    CHECK(OutputOf("\"" TEXT_MODE_PRINTER "\" 2>&1 >/dev/null") == "");
}

TEST_CASE("in text mode those prints flush that end a line or a message, and no others")
{
    ConsoleOnStage on(false);
    ZenqoConsole& console = *on.console;
    wxColour const colour(1, 2, 3);
    CHECK(FlushesOf([&] { console.PrintOnConsole(std::string("a")); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsole(1); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsole(1.5); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleNewLine(); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleBG("a", colour); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleBF("a", colour); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleModel("a"); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleTerminal("a"); }) == 0);
    CHECK(FlushesOf([&] { console.PrintOnConsole(std::string("a"), colour); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleError("a"); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleWarning("a"); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleCode("a"); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnConsoleLine(); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnStartup(); }) > 0);
    CHECK(FlushesOf([&] { console.PrintOnConsole(Eigen::MatrixXd(Eigen::MatrixXd::Zero(2, 2))); }) > 0);
    // The control stands by, empty.
    CHECK(on.Value() == "");
}

TEST_CASE("the mode is taken at construction and never changes")
{
    ConsoleOnStage on(true);
    Mode const later(false);
    on.console->PrintOnConsole(std::string("in the control"));
    CHECK(on.Value() == "in the control");
}
