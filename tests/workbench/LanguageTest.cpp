#include <catch2/catch.hpp>

#include <cmath>
#include <random>

#include "workbench/Scratch.h"
#include "workbench/script/Nearest.h"
#include "workbench/script/Parser.h"

using workbench::Argument;
using workbench::Call;
using workbench::ParseScript;
using workbench::ScriptError;

namespace
{
/// "LINE:COLUMN message" of the error that parsing gives.
std::string Failure(std::string const& script)
{
    try
    {
        ParseScript(script);
    }
    catch (ScriptError const& error)
    {
        return std::to_string(error.line) + ":" + std::to_string(error.column) + " " + error.what();
    }
    return "(no error)";
}

Eigen::MatrixXd MatrixOf(std::string const& literal)
{
    auto const statements = ParseScript("m = " + literal + ";");
    return std::get<Argument>(statements.at(0).value).matrix;
}

Eigen::MatrixXd Rows(std::initializer_list<std::initializer_list<double>> rows)
{
    return Eigen::MatrixXd(rows);
}

std::string const DOUBLE_QUOTE_HINT = "; a string ends at its second double quote, and a path that "
                                      "holds a double quote cannot be written in a script";
} // namespace

TEST_CASE("the statements that the widgets compose parse")
{
    auto const load = ParseScript("load(\"/a b/c.zws\");");
    REQUIRE(load.size() == 1);
    CHECK_FALSE(load[0].target);
    auto const& call = std::get<Call>(load[0].value);
    CHECK(call.command == "load");
    REQUIRE(call.arguments.size() == 1);
    CHECK(call.arguments[0].kind == Argument::Kind::String);
    CHECK(call.arguments[0].text == "/a b/c.zws");

    auto const import = ParseScript("wages = import(\"/tmp/wages.csv\", \"\\t\");");
    REQUIRE(import.size() == 1);
    CHECK(import[0].target == "wages");
    auto const& arguments = std::get<Call>(import[0].value).arguments;
    REQUIRE(arguments.size() == 2);
    CHECK(arguments[0].text == "/tmp/wages.csv");
    CHECK(arguments[1].text == "\\t");
    CHECK(import[0].source == "wages = import(\"/tmp/wages.csv\", \"\\t\");");
}

TEST_CASE("nothing in a string is escaped")
{
    auto const statements =
        ParseScript("load(\"C:\\new\\table // no comment /* nor this */ \xC3\xA9\");");
    CHECK(std::get<Call>(statements.at(0).value).arguments[0].text
          == "C:\\new\\table // no comment /* nor this */ \xC3\xA9");
}

TEST_CASE("blanks, line ends, comments and empty statements mean nothing")
{
    auto const statements = ParseScript(
        "\xEF\xBB\xBF// first \"\r\n;; /* two\n * lines ** */ a\n\t=\r\n[1,\n2] ;\rb=a;// end");
    REQUIRE(statements.size() == 2);
    CHECK(statements[0].target == "a");
    CHECK(statements[0].source == "a\n\t=\r\n[1,\n2] ;");
    CHECK(statements[0].position.line == 3);
    CHECK(statements[0].position.column == 16);
    CHECK(statements[1].source == "b=a;");
    CHECK(statements[1].position.line == 7);
    CHECK(statements[1].position.column == 1);
    CHECK(ParseScript("").empty());
    CHECK(ParseScript(" \n // nothing").empty());
}

TEST_CASE("matrices are written in rows")
{
    CHECK(MatrixOf("[1, 2; 3, 4]") == Rows({{1, 2}, {3, 4}}));
    CHECK(MatrixOf("[1;2;3]") == Rows({{1}, {2}, {3}}));
    CHECK(MatrixOf("[ -1, +2.5, .5, 5., 1e3, 1E-3, - 7, 2e+2 ]")
          == Rows({{-1, 2.5, .5, 5., 1e3, 1e-3, -7, 200}}));
    CHECK(MatrixOf("[1,\n 2;\n /* second row */ 3,\n 4\n]") == Rows({{1, 2}, {3, 4}}));
    CHECK(MatrixOf("[]").rows() == 0);
    CHECK(MatrixOf("[]").cols() == 0);
    CHECK(MatrixOf("3.25") == Rows({{3.25}}));
    CHECK(MatrixOf("-3") == Rows({{-3}}));
    auto const special = MatrixOf("[inf, -inf, nan, -0]");
    CHECK(std::isinf(special(0)));
    CHECK(special(1) == -special(0));
    CHECK(std::isnan(special(2)));
    CHECK(std::signbit(special(3)));
    CHECK(MatrixOf("[0.10000000000000001, 4.9e-324]") == Rows({{0.1, 4.9e-324}}));
}

TEST_CASE("an error tells line, column and what was expected")
{
    CHECK(Failure("a = [1, 2; 3];")
          == "1:12 expected 2 elements in each row of the matrix, but row 2 has 1");
    CHECK(Failure("a = [1 2];")
          == "1:8 expected \",\", \";\" or \"]\" behind an element of the matrix, but found \"2\"");
    CHECK(Failure("a = [1, ];") == "1:9 expected a number, but found \"]\"");
    CHECK(Failure("a = [1, b];") == "1:9 expected a number, but found \"b\"");
    CHECK(Failure("a = [1, 2")
          == "1:10 expected \",\", \";\" or \"]\" behind an element of the matrix, "
             "but found the end of the script");
    CHECK(Failure("a = 1.2.3;") == "1:5 expected a number, but found \"1.2.3\"");
    CHECK(Failure("a = 5abc;") == "1:5 expected a number, but found \"5abc\"");
    CHECK(Failure("a = 1e;") == "1:5 expected a number, but found \"1e\"");
    CHECK(Failure("a = 1e999;")
          == "1:5 the number \"1e999\" is beyond what can be stored, about 1e-308 to 1e308 in size");
    CHECK(Failure("a = \"text\";")
          == "1:5 expected a command, a name, a number or a matrix behind \"=\", but found the string "
             "\"text\"");
    CHECK(Failure("a") == "1:2 expected \"=\" or \"(\" behind \"a\", but found the end of the script");
    CHECK(Failure("a b;") == "1:3 expected \"=\" or \"(\" behind \"a\", but found \"b\"");
    CHECK(Failure("print(a)")
          == "1:9 expected \";\" at the end of the statement, but found the end of the script");
    CHECK(Failure("print(a)\nprint(b);")
          == "2:1 expected \";\" at the end of the statement, but found \"print\"");
    CHECK(Failure("print(a;")
          == "1:8 expected \",\" or \")\" behind an argument of \"print\", but found \";\"");
    CHECK(Failure("print(,);")
          == "1:7 expected a string, a name, a number or a matrix, but found \",\"");
    CHECK(Failure("= 3;")
          == "1:1 expected a statement, \"name = ...;\" or \"command(...);\", but found \"=\"");
    CHECK(Failure("3 = a;")
          == "1:1 expected a statement, \"name = ...;\" or \"command(...);\", but found \"3\"");
    CHECK(Failure("/* \xC3\xA9 */ ?")
          == "1:9 expected a name, a string in double quotes, a number or one of ( ) [ ] , ; = + -, but "
             "found \"?\"");
    CHECK(Failure("a = 1;\n  /* never closed")
          == "2:3 expected \"*/\" at the end of the comment that begins here");
    CHECK(Failure("a = 1; /*/") == "1:8 expected \"*/\" at the end of the comment that begins here");
    CHECK(Failure("a = 1; / b")
          == "1:8 expected a name, a string in double quotes, a number or one of "
             "( ) [ ] , ; = + -, but found \"/\"");
}

TEST_CASE("a string ends on its line")
{
    std::string const expected = "1:6 expected a double quote at the end of the string that begins "
                                 "here; a string ends on its line, and a "
                                 "path that holds a double quote cannot be written in a script";
    CHECK(Failure("load(\"/a/b.zws);") == expected);
    CHECK(Failure("load(\"/a/\nb.zws\");") == expected);
    CHECK(Failure("load(\"/a/\rb.zws\");") == expected);
}

TEST_CASE("a path that holds a double quote is one clear error")
{
    CHECK(Failure("load(\"/a\"b.zws\");")
          == "1:10 expected \",\" or \")\" behind an argument of \"load\", but found \"b\""
                 + DOUBLE_QUOTE_HINT);
    CHECK(Failure("load(\"/a\"1\".zws\");")
          == "1:10 expected \",\" or \")\" behind an argument of \"load\", but found \"1\""
                 + DOUBLE_QUOTE_HINT);
    CHECK(
        Failure("load(\"/a\"\"b.zws\");")
        == "1:10 expected \",\" or \")\" behind an argument of \"load\", but found the string \"b.zws\""
               + DOUBLE_QUOTE_HINT);
    CHECK(Failure("load(\"/a.zws\"\");")
          == "1:14 expected a double quote at the end of the string that begins here; a string ends on "
             "its line, and "
             "a path that holds a double quote cannot be written in a script");
}

TEST_CASE("columns count characters")
{
    CHECK(Failure("load(\"/\xC3\xA4\xE2\x82\xAC\", ?);").substr(0, 4) == "1:13");
}

TEST_CASE("mutated scripts never crash, and each error lies within the text")
{
    std::string const seeds[] = {
        "wages = import(\"/tmp/wages.csv\", \"\\t\"); print(wages);\nm = [1, -2.5e3; 3, 4];\n// end\n",
        "load(\"/a b/c.zws\"); /* x */ x = [];\nsave(\"\xC3\xA9.zws\"); clear(x);",
        "a = [1,2,3;4,5,6]; b = a; export(b, \"/x\", \",\");"};
    std::string const alphabet = "\"\"()[];;,=+-.eE019ab_/*\\\n\r\t \xC3\xA9\xFF";
    std::mt19937 random(7);
    int errors = 0;
    for (int i = 0; i < 30000; ++i)
    {
        auto script = seeds[random() % 3];
        for (auto n = 1 + random() % 6; n > 0; --n)
        {
            auto const at = random() % (script.size() + 1);
            char const c = alphabet[random() % alphabet.size()];
            if (random() % 3 == 0)
                script.insert(at, 1, c);
            else if (at < script.size() && random() % 2 == 0)
                script.erase(at, 1 + random() % 5);
            else if (at < script.size())
                script[at] = c;
        }
        try
        {
            ParseScript(script);
        }
        catch (ScriptError const& error)
        {
            ++errors;
            int line = 1;
            int columns = 1;
            for (std::size_t k = 0; k < script.size() && line < error.line; ++k)
                line += script[k] == '\n'
                        || (script[k] == '\r' && (k + 1 == script.size() || script[k + 1] != '\n'));
            columns += static_cast<int>(script.size());
            if (error.line < 1 || error.line > line || error.column < 1 || error.column > columns)
                FAIL("at " << error.line << ":" << error.column << " in \n" << script);
        }
    }
    CHECK(errors > 10000);
    CHECK(errors < 30000);
}

TEST_CASE("a misspelled name finds the one that was meant")
{
    std::vector<std::string> const known = {"airquality", "cars", "wages"};
    CHECK(workbench::Nearest("wagse", known) == "wages");
    CHECK(workbench::Nearest("Cars", known) == "cars");
    CHECK(workbench::Nearest("airqualty", known) == "airquality");
    CHECK(workbench::Nearest("boats", known) == "");
    CHECK(workbench::Nearest("x", known) == "");
    CHECK(workbench::Suggestion("boats", known, "names") == "; the names are: airquality, cars, wages");
    CHECK(workbench::Suggestion("boats", {}, "names") == "; there are no names");
    std::vector<std::string> many;
    for (int i = 100; i < 125; ++i)
        many.push_back("n" + std::to_string(i));
    CHECK(workbench::Suggestion("boats", many, "names")
          == "; the names are: n100, n101, n102, n103, n104, n105, n106, n107, n108, n109, n110, n111, "
             "n112, n113, "
             "n114, n115, n116, n117, n118, n119 and 5 more");
}
