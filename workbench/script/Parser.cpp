#include "workbench/script/Parser.h"

#include <limits>
#include <utility>

#include "workbench/script/Lexer.h"

namespace workbench
{
namespace
{
class Parser
{
public:
    explicit Parser(std::string const& script)
        : m_script(script), m_lexer(script), m_token(m_lexer.Next())
    {
    }

    std::vector<Statement> Script()
    {
        std::vector<Statement> statements;
        while (m_token.kind != Token::Kind::End)
        {
            if (m_token.Is(';'))
                Advance();
            else
                statements.push_back(OneStatement());
        }
        return statements;
    }

private:
    void Advance()
    {
        m_afterString = m_token.kind == Token::Kind::String;
        m_lastEnd = m_token.end;
        m_token = m_lexer.Next();
    }

    [[noreturn]] void FailExpecting(std::string const& what) const
    {
        std::string message = "expected " + what + ", but found " + m_token.Describe();
        if (m_afterString
            && (m_token.kind == Token::Kind::Name || m_token.kind == Token::Kind::String
                || m_token.kind == Token::Kind::Number))
            message +=
                "; a string ends at its second double quote, and a path that holds a double quote "
                "cannot be written in a script";
        throw ScriptError(message, m_token.position);
    }

    bool TakeIf(char symbol)
    {
        if (!m_token.Is(symbol))
            return false;
        Advance();
        return true;
    }

    Statement OneStatement()
    {
        Statement statement;
        auto const first = m_token;
        statement.position = first.position;
        if (first.kind != Token::Kind::Name)
            FailExpecting("a statement, \"name = ...;\" or \"command(...);\"");
        Advance();
        if (TakeIf('='))
        {
            statement.target = first.text;
            statement.value = Value();
        }
        else if (m_token.Is('('))
            statement.value = Arguments(first);
        else
            FailExpecting("\"=\" or \"(\" behind \"" + first.text + "\"");
        if (!m_token.Is(';'))
            FailExpecting("\";\" at the end of the statement");
        Advance();
        statement.source = m_script.substr(first.begin, m_lastEnd - first.begin);
        return statement;
    }

    std::variant<Call, Argument> Value()
    {
        auto const first = m_token;
        if (first.kind == Token::Kind::String)
            FailExpecting("a command, a name, a number or a matrix behind \"=\"");
        auto argument = OneArgument("a command, a name, a number or a matrix behind \"=\"");
        if (argument.kind == Argument::Kind::Name && m_token.Is('('))
            return Arguments(first);
        return argument;
    }

    /// From the opening parenthesis to the closing one.
    Call Arguments(Token const& command)
    {
        Call call{command.text, {}, {}, command.position};
        Advance();
        if (TakeIf(')'))
            return call;
        do
            ArgumentOrOption(call);
        while (TakeIf(','));
        if (!TakeIf(')'))
            FailExpecting("\",\" or \")\" behind an argument of \"" + command.text + "\"");
        return call;
    }

    void ArgumentOrOption(Call& call)
    {
        auto const expected = "a string, a name, a number or a matrix";
        auto argument = OneArgument(expected);
        if (argument.kind == Argument::Kind::String && TakeIf('='))
            call.options.push_back({argument.text, OneArgument(expected), argument.position});
        else if (call.options.empty())
            call.arguments.push_back(std::move(argument));
        else
            throw ScriptError("expected only options, \"key\"=value, behind the first one",
                              argument.position);
    }

    Argument OneArgument(char const* expected)
    {
        Argument argument;
        argument.position = m_token.position;
        if (m_token.kind == Token::Kind::String || m_token.kind == Token::Kind::Name)
        {
            argument.kind =
                m_token.kind == Token::Kind::String ? Argument::Kind::String : Argument::Kind::Name;
            argument.text = m_token.text;
            Advance();
        }
        else if (m_token.Is('['))
        {
            argument.kind = Argument::Kind::Matrix;
            argument.matrix = Matrix();
        }
        else if (m_token.kind == Token::Kind::Number || m_token.Is('+') || m_token.Is('-'))
        {
            argument.kind = Argument::Kind::Number;
            argument.matrix = Eigen::MatrixXd::Constant(1, 1, Number());
        }
        else
            FailExpecting(expected);
        return argument;
    }

    double Number()
    {
        bool const negative = TakeIf('-');
        if (!negative)
            TakeIf('+');
        double value = m_token.number;
        // A matrix written by the program may hold these.
        if (m_token.kind == Token::Kind::Name && m_token.text == "inf")
            value = std::numeric_limits<double>::infinity();
        else if (m_token.kind == Token::Kind::Name && m_token.text == "nan")
            value = std::numeric_limits<double>::quiet_NaN();
        else if (m_token.kind != Token::Kind::Number)
            FailExpecting("a number");
        Advance();
        return negative ? -value : value;
    }

    Eigen::MatrixXd Matrix()
    {
        Advance();
        if (TakeIf(']'))
            return Eigen::MatrixXd(0, 0);
        std::vector<double> values;
        Eigen::Index rows = 0;
        Eigen::Index cols = 0;
        do
        {
            auto const rowPosition = m_token.position;
            auto const before = values.size();
            do
                values.push_back(Number());
            while (TakeIf(','));
            auto const width = static_cast<Eigen::Index>(values.size() - before);
            if (rows > 0 && width != cols)
                throw ScriptError("expected " + std::to_string(cols)
                                      + " elements in each row of the matrix, but row "
                                      + std::to_string(rows + 1) + " has " + std::to_string(width),
                                  rowPosition);
            cols = width;
            ++rows;
        } while (TakeIf(';'));
        if (!TakeIf(']'))
            FailExpecting("\",\", \";\" or \"]\" behind an element of the matrix");

        using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
        return Eigen::Map<RowMajor const>(values.data(), rows, cols);
    }

    std::string const& m_script;
    Lexer m_lexer;
    Token m_token;
    std::size_t m_lastEnd = 0; ///< Offset behind the last token that was taken.
    bool m_afterString = false;
};
} // namespace

std::vector<Statement> ParseScript(std::string const& script) { return Parser(script).Script(); }
} // namespace workbench
