#include <catch2/catch.hpp>

#include <algorithm>
#include <random>
#include <sstream>

#include "common/TexText.h"

using zenqo::TextToTex;

namespace
{
std::vector<std::string> LinesOf(std::string const& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

long CountOf(std::vector<std::string> const& lines, std::string const& start)
{
    return std::count_if(lines.begin(), lines.end(),
                         [&](std::string const& line) { return line.rfind(start, 0) == 0; });
}

std::string RandomText(std::mt19937& random, std::string const& alphabet, int length)
{
    std::string text;
    for (int i = 0; i < length; ++i)
        text += alphabet[random() % alphabet.size()];
    return text;
}

bool HasBareSpecial(std::string const& line)
{
    for (std::size_t i = 0; i < line.size(); ++i)
        if ((line[i] == '%' || line[i] == '#' || line[i] == '_') && (i == 0 || line[i - 1] != '\\'))
            return true;
    return false;
}
} // namespace

TEST_CASE("two lines of two cells are one table")
{
    CHECK(TextToTex("a\tb\nc\td", {})
          == "\\begin{tabular}{lr}\na&b\\\\\nc&d\\\\\n\\end{tabular}\n\\newline\n");
    CHECK(TextToTex("a\tb\nc\td\n", {}) == TextToTex("a\tb\nc\td", {}));
}

TEST_CASE("special characters of a cell are escaped before the separators are made")
{
    CHECK(TextToTex("x_1\t50%", {}) == "\\begin{tabular}{lr}\nx\\_1&50\\%\\\\\n\\end{tabular}\n\\newline\n");
    CHECK(TextToTex("R&D\t#1", {}) == "\\begin{tabular}{lr}\nR\\&D&\\#1\\\\\n\\end{tabular}\n\\newline\n");
    CHECK(TextToTex("\\{$^~}", {}) == "\\{$^~}\n");
    CHECK(TextToTex("\\%", {}) == "\\\\%\n");
}

TEST_CASE("a wider row closes the table and opens one of its own at once")
{
    CHECK(LinesOf(TextToTex("a\tb\nc\td\te", {}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "a&b\\\\", "\\end{tabular}", "\\newline",
                                      "\\begin{tabular}{lrr}", "c&d&e\\\\", "\\end{tabular}", "\\newline"});
}

TEST_CASE("a plain line between two rows of equal width splits them into two tables")
{
    CHECK(LinesOf(TextToTex("a\tb\nplain\nc\td", {}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "a&b\\\\", "\\end{tabular}", "\\newline", "plain",
                                      "\\begin{tabular}{lr}", "c&d\\\\", "\\end{tabular}", "\\newline"});
}

TEST_CASE("a selection without tabs is copied line by line with the escapes")
{
    CHECK(TextToTex("one\n\n100%\n", {}) == "one\n\n100\\%\n");
    CHECK(TextToTex("no line end", {}) == "no line end\n");
    CHECK(TextToTex("", {}) == "");
    CHECK(TextToTex("\n", {}) == "\n");
}

TEST_CASE("a line of tabs alone is a row of empty cells")
{
    CHECK(TextToTex("\t\t", {}) == "\\begin{tabular}{lrr}\n&&\\\\\n\\end{tabular}\n\\newline\n");
}

TEST_CASE("a rule line before a table opens the table with a line")
{
    CHECK(LinesOf(TextToTex("----\na\tb\nc\td", {0}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "\\hline", "a&b\\\\", "c&d\\\\", "\\end{tabular}",
                                      "\\newline"});
}

TEST_CASE("a rule line between rows of equal width is a line in the table")
{
    CHECK(LinesOf(TextToTex("a\tb\n----\nc\td", {1}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "a&b\\\\", "\\hline", "c&d\\\\", "\\end{tabular}",
                                      "\\newline"});
}

TEST_CASE("a rule line before a row of another width ends the table and heads the next one")
{
    CHECK(LinesOf(TextToTex("a\tb\n----\nc\td\te", {1}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "a&b\\\\", "\\end{tabular}", "\\newline",
                                      "\\begin{tabular}{lrr}", "\\hline", "c&d&e\\\\", "\\end{tabular}",
                                      "\\newline"});
}

TEST_CASE("a rule line after the last row, or before a plain line, ends the table")
{
    std::vector<std::string> const table{"\\begin{tabular}{lr}", "a&b\\\\", "\\hline", "\\end{tabular}",
                                         "\\newline"};
    CHECK(LinesOf(TextToTex("a\tb\n----", {1})) == table);
    auto withPlain = table;
    withPlain.push_back("plain");
    CHECK(LinesOf(TextToTex("a\tb\n----\nplain", {1})) == withPlain);
    withPlain.insert(withPlain.end(), table.begin(), table.end());
    CHECK(LinesOf(TextToTex("a\tb\n----\nplain\na\tb\n----", {1, 4})) == withPlain);
}

TEST_CASE("a rule line alone has no table to stand in")
{
    CHECK(TextToTex("----", {0}) == "\\hline\n");
    CHECK(LinesOf(TextToTex("plain\n----\nplain", {1})) == std::vector<std::string>{"plain", "\\hline", "plain"});
}

TEST_CASE("a table framed by three rules, as a results table prints")
{
    CHECK(LinesOf(TextToTex("====\n\tMean\tSd\n----\nx_1\t0.5\t0.1\nconst\t2\t1\n====\n", {0, 2, 5}))
          == std::vector<std::string>{"\\begin{tabular}{lrr}", "\\hline", "&Mean&Sd\\\\", "\\hline",
                                      "x\\_1&0.5&0.1\\\\", "const&2&1\\\\", "\\hline", "\\end{tabular}",
                                      "\\newline"});
}

TEST_CASE("a rule line that holds tabs is a row, and the rules after it are rows of text")
{
    // The list of rules is followed in order: a rule that is not met holds up those behind it.
    CHECK(LinesOf(TextToTex("a\tb\n----", {0, 1}))
          == std::vector<std::string>{"\\begin{tabular}{lr}", "a&b\\\\", "\\end{tabular}", "\\newline", "----"});
}

TEST_CASE("random selections keep their lines, balance their tables and leave no special bare")
{
    auto const seed = GENERATE(range(1u, 6u));
    CAPTURE(seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 1000; ++round)
    {
        std::string const text = RandomText(random, "ab1 \t\t\n\n%#&_\\", static_cast<int>(random() % 60));
        CAPTURE(text);
        auto const in = LinesOf(text);
        auto const out = LinesOf(TextToTex(text, {}));
        auto const begins = CountOf(out, "\\begin{tabular}");
        REQUIRE(begins == CountOf(out, "\\end{tabular}"));
        REQUIRE(static_cast<long>(out.size()) == static_cast<long>(in.size()) + 3 * begins);
        bool open = false;
        std::size_t columns = 0;
        for (auto const& line : out)
        {
            if (line.rfind("\\begin{tabular}{", 0) == 0)
            {
                REQUIRE_FALSE(open);
                open = true;
                columns = line.size() - std::string("\\begin{tabular}{}").size();
            }
            else if (line == "\\end{tabular}")
            {
                REQUIRE(open);
                open = false;
            }
            else
            {
                REQUIRE_FALSE(HasBareSpecial(line));
                if (open)
                {
                    std::size_t bare = 0;
                    for (std::size_t i = 0; i < line.size(); ++i)
                        bare += line[i] == '&' && (i == 0 || line[i - 1] != '\\');
                    // A backslash of the text in front of a separator hides the separator from this count.
                    if (line.find("\\&") == std::string::npos)
                        REQUIRE(bare + 1 == columns);
                }
            }
        }
        REQUIRE_FALSE(open);
    }
}

TEST_CASE("text with neither tabs nor specials comes out as it went in, and again")
{
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round)
    {
        std::string text = RandomText(random, "abc 12.{}$^~\\\n", static_cast<int>(random() % 80)) + "\n";
        REQUIRE(TextToTex(text, {}) == text);
        REQUIRE(TextToTex(TextToTex(text, {}), {}) == text);
    }
}

TEST_CASE("random rule lines keep the tables balanced")
{
    std::mt19937 random(11);
    for (int round = 0; round < 2000; ++round)
    {
        std::vector<std::string> lines{"a\tb"};
        std::vector<int> rules;
        int const count = 1 + static_cast<int>(random() % 12);
        for (int i = 1; i < count; ++i)
        {
            switch (random() % 4)
            {
            case 0: lines.push_back("a\tb"); break;
            case 1: lines.push_back("a\tb\tc"); break;
            case 2: lines.push_back("plain"); break;
            default:
                // A rule stands behind a row, as on the console.
                if (lines.back().find('\t') != std::string::npos)
                    rules.push_back(i);
                lines.push_back("    ");
            }
        }
        std::string text;
        for (auto const& line : lines)
            text += line + "\n";
        CAPTURE(text);
        auto const out = LinesOf(TextToTex(text, rules));
        REQUIRE(CountOf(out, "\\begin{tabular}") == CountOf(out, "\\end{tabular}"));
        REQUIRE(CountOf(out, "\\hline") == static_cast<long>(rules.size()));
    }
}
