#include <catch2/catch.hpp>

#include <random>
#include <sstream>

#include "engine/Engine.h"
#include "workbench/engine/Utf8.h"

namespace
{
std::string Processed(std::string id)
{
    ProcessID(id);
    return id;
}

template <class Matrix>
std::string Formatted(Matrix const& matrix, Eigen::IOFormat const& format)
{
    std::ostringstream stream;
    stream << matrix.format(format);
    return stream.str();
}
} // namespace

TEST_CASE("a legal name begins with a letter or an underscore and goes on with letters and digits")
{
    for (char const* const legal : {"a", "Z", "_", "__x__", "wages", "wages_2019", "a1", "_1"})
        CHECK(CheckID(legal));
    for (char const* const illegal : {"", "1a", " a", "a ", "a b", "a.b", "a-b", "a,b", "\"a\"",
                                      "gr\xC3\xB6\xC3\x9F"
                                      "e",
                                      "a\n", "a\tb"})
        CHECK_FALSE(CheckID(illegal));
    CHECK_FALSE(CheckID(std::string("a\0b", 3)));
}

TEST_CASE("file names become legal names")
{
    CHECK(Processed("wages") == "wages");
    CHECK(Processed("__x__") == "__x__");
    CHECK(Processed("wages 2019") == "wages_2019");
    CHECK(Processed("2019 wages") == "_2019_wages");
    CHECK(Processed("my  file (2)") == "my_file_2");
    CHECK(Processed("  x") == "_x");
    CHECK(Processed("a.b-c") == "a_b_c");
    CHECK(Processed("") == "unnamed");
    CHECK(Processed("   ") == "unnamed");
    CHECK(Processed("gr\xC3\xB6\xC3\x9F"
                    "e")
          == "gr_e");
    CHECK(Processed("\xE6\x97\xA5\xE6\x9C\xAC") == "unnamed");
    CHECK(Processed("\xFF") == "unnamed");
}

TEST_CASE("any text becomes a legal name, and a legal name stays")
{
    std::mt19937 random(20261121);
    for (int i = 0; i < 20000; ++i)
    {
        std::string text(random() % 12, '\0');
        for (char& c : text)
            c = static_cast<char>(random() % 4 == 0 ? random() : "aZ_9 ."[random() % 6]);
        auto const id = Processed(text);
        if (!CheckID(id) || Processed(id) != id || (CheckID(text) && id != text))
            FAIL("of \"" << text << "\" came \"" << id << "\"");
    }
    SUCCEED();
}

TEST_CASE("a long message is broken at blanks to 92 columns")
{
    std::string const word(30, 'a');
    auto const sentence = word + " " + word + " " + word + " " + word;
    CHECK(BreakLongMassage(sentence, false) == word + " " + word + " " + word + "\n" + word);
    // Nine columns of the first line belong to "WARNING: ".
    CHECK(BreakLongMassage(sentence, true) == word + " " + word + "\n" + word + " " + word);

    CHECK(BreakLongMassage("", true) == "");
    CHECK(BreakLongMassage("short", true) == "short");
    CHECK(BreakLongMassage("one\ntwo\n\nthree\n", true) == "one\ntwo\n\nthree\n");
    CHECK(BreakLongMassage("  indented  text", false) == "  indented  text");
    auto const exact = std::string(45, 'b') + " " + std::string(46, 'c');
    CHECK(BreakLongMassage(exact, false) == exact);
    CHECK(BreakLongMassage(exact + "c", false) == std::string(45, 'b') + "\n" + std::string(47, 'c'));
    CHECK(BreakLongMassage(std::string(83, 'd') + " e", true) == std::string(83, 'd') + "\ne");
}

TEST_CASE("a word wider than the console stays whole")
{
    std::string const path(200, 'p');
    CHECK(BreakLongMassage(path, true) == path);
    CHECK(BreakLongMassage("the file " + path + " is gone", false) == "the file\n" + path + "\nis gone");
}

TEST_CASE("messages are measured in characters, not in bytes")
{
    std::string word;
    for (int i = 0; i < 45; ++i)
        word += "\xC3\xA9";
    CHECK(BreakLongMassage(word + " " + word, false) == word + " " + word);
    CHECK(BreakLongMassage(word + " " + word + " " + word, false) == word + " " + word + "\n" + word);
}

TEST_CASE("the long display form is 64 characters on one line")
{
    CHECK(ExpandContractStringLong("") == std::string(64, ' '));
    CHECK(ExpandContractStringLong("wages on age") == "wages on age" + std::string(52, ' '));
    CHECK(ExpandContractStringLong(std::string(64, 'x')) == std::string(64, 'x'));
    CHECK(ExpandContractStringLong(std::string(65, 'x')) == std::string(61, 'x') + "...");
    CHECK(ExpandContractStringLong("a\tb\nc") == "a b c" + std::string(59, ' '));
    std::string accents;
    for (int i = 0; i < 70; ++i)
        accents += "\xC3\xA9";
    CHECK(workbench::CountCharacters(ExpandContractStringLong(accents)) == 64);
}

TEST_CASE("matrices print with tabs on the console and read back from a script fragment")
{
    namespace System = Zenqo_SYSTEM_NAMESPACE;
    Eigen::MatrixXd matrix(2, 2);
    matrix << 1, 2.5, -3, 100;
    CHECK(Formatted(matrix, System::GLOBAL_IOFormatConsole) == "  1\t2.5\n -3\t100");
    CHECK(Formatted(matrix, System::GLOBAL_IOFormatInput) == "1, 2.5; -3, 100");
    CHECK(Formatted(Eigen::MatrixXd(Eigen::MatrixXd::Constant(1, 1, 0.1)), System::GLOBAL_IOFormatInput)
          == "0.10000000000000001");
    CHECK(Formatted(Eigen::MatrixXd(0, 0), System::GLOBAL_IOFormatInput) == "");
    CHECK(Formatted(Eigen::VectorXd(Eigen::Vector2d(1, 2)), System::GLOBAL_IOFormatInput) == "1; 2");
}

TEST_CASE("the globals have sensible values before anything is set")
{
    namespace System = Zenqo_SYSTEM_NAMESPACE;
    CHECK(System::RUN_GUI);
    CHECK(System::GLOBAL_Gibbs == (Eigen::VectorXd(5) << 20000, 10000, 1, 1, 42).finished());
    for (auto const* const path :
         {&System::GLOBAL_DirectoryJAGS, &System::GLOBAL_DirectoryBUGS, &System::GLOBAL_DirectorySTAN,
          &System::GLOBAL_DirectoryMATLAB, &System::GLOBAL_DirectoryOCTAVE, &System::GLOBAL_DirectoryR,
          &System::GLOBAL_DirectorySTATA})
        CHECK(*path == "__Zenqo_SYSTEM_DEFAULT_STRING___");
}

TEST_CASE("characters of UTF-8 are told from bytes that are none")
{
    using workbench::CharacterLength;
    CHECK(CharacterLength("a", 0) == 1);
    CHECK(CharacterLength("\xC3\xA9", 0) == 2);
    CHECK(CharacterLength("\xE2\x82\xAC", 0) == 3);
    CHECK(CharacterLength("\xF0\x9F\x98\x80", 0) == 4);
    for (char const* const bad :
         {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x80\x80", "\xE2\x82", "\xED\xA0\x80",
          "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"})
        CHECK_FALSE(workbench::IsUtf8(bad));
    CHECK(workbench::CountCharacters("a\xC3\xA9\xFFz") == 4);
    CHECK(workbench::FirstCharacters("\xC3\xA9z", 1) == "\xC3\xA9");
}
