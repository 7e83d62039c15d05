// An expression is turned into a program for a stack of columns. The program runs over the
// observations block by block, so that all that lies between stays in the processor's cache.

#include "workbench/engine/Expression.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <vector>

#include "workbench/engine/InputFile.h"
#include "workbench/engine/Progress.h"
#include "workbench/engine/Utf8.h"
#include "workbench/engine/Variables.h"

namespace workbench
{
namespace
{
/// Observations that are computed at once, and how many of such blocks go by between two reports.
constexpr Eigen::Index BLOCK = 1024;
constexpr Eigen::Index REPORT_EVERY = 32;

/// How deep parentheses, signs and powers may stand in each other.
constexpr int DEEPEST = 200;

constexpr double MISSING = std::numeric_limits<double>::quiet_NaN();

enum class Code
{
    Number,
    Variable,
    Add,
    Subtract,
    Multiply,
    Divide,
    Power,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,
    NotEqual,
    Negate,
    Ones,
    Sqrt,
    Exp,
    Log
};

/// One step of a program: puts a value on the stack, or works on the uppermost one or two.
struct Step
{
    Code code;
    double number = 0.0;              ///< Of Code::Number.
    double const* variable = nullptr; ///< The column of Code::Variable.
};

using Steps = std::vector<Step>;

// --------------------------------------------------------------------------------------- reading

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A workspace file may bring variables with names outside ASCII.
bool IsNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'
           || static_cast<unsigned char>(c) >= 0x80;
}

bool IsNamePart(char c) { return IsNameStart(c) || IsDigit(c); }

struct Symbol
{
    std::string_view text;
    Code code;
};

/// Longer ones before those with which they begin. A name stands for one value in each observation,
/// so an operator with a dot and the one without do the same.
constexpr Symbol COMPARISONS[] = {{"<=", Code::LessOrEqual}, {">=", Code::GreaterOrEqual},
                                  {"==", Code::Equal},       {"!=", Code::NotEqual},
                                  {"~=", Code::NotEqual},    {"<", Code::Less},
                                  {">", Code::Greater}};
constexpr Symbol SUMS[] = {{"+", Code::Add}, {"-", Code::Subtract}};
constexpr Symbol PRODUCTS[] = {
    {"*", Code::Multiply}, {".*", Code::Multiply}, {"/", Code::Divide}, {"./", Code::Divide}};
constexpr Symbol POWERS[] = {{"^", Code::Power}, {".^", Code::Power}};
constexpr Symbol FUNCTIONS[] = {
    {"exp", Code::Exp}, {"log", Code::Log}, {"ones", Code::Ones}, {"sqrt", Code::Sqrt}};

class Reader
{
public:
    Reader(std::string const& text, ExpressionNames const& names) : m_text(text), m_names(names) {}

    Steps Read()
    {
        Comparison();
        if (m_offset < m_text.size())
            Fail("expected an operator or the end of the expression, but found " + Found());
        return std::move(m_steps);
    }

private:
    /// Counts how deep the reading is in itself.
    class Level
    {
    public:
        explicit Level(Reader& reader) : m_reader(reader)
        {
            if (++m_reader.m_depth > DEEPEST)
                m_reader.Fail("the expression is more than " + std::to_string(DEEPEST) + " levels deep");
        }
        ~Level() { --m_reader.m_depth; }
        Level(Level const&) = delete;
        Level& operator=(Level const&) = delete;

    private:
        Reader& m_reader;
    };

    [[noreturn]] void Fail(std::string const& message) const
    {
        throw ExpressionError(message, m_offset);
    }

    char Peek(std::size_t ahead = 0) const
    {
        return m_offset + ahead < m_text.size() ? m_text[m_offset + ahead] : '\0';
    }

    void SkipBlanks()
    {
        while (Peek() == ' ' || Peek() == '\t')
            ++m_offset;
    }

    /// What stands here, as a message names it.
    std::string Found() const
    {
        if (m_offset == m_text.size())
            return "its end";
        auto end = m_offset;
        while (end < m_text.size() && IsNamePart(m_text[end]))
            ++end;
        if (end == m_offset)
            end += std::max<std::size_t>(1, CharacterLength(m_text, m_offset));
        return Quoted(m_text.substr(m_offset, end - m_offset));
    }

    template <std::size_t N>
    Symbol const* TakeSymbol(Symbol const (&symbols)[N])
    {
        SkipBlanks();
        for (auto const& symbol : symbols)
            if (m_text.compare(m_offset, symbol.text.size(), symbol.text) == 0)
            {
                m_offset += symbol.text.size();
                return &symbol;
            }
        return nullptr;
    }

    void Add(Code code) { m_steps.push_back({code}); }

    void Comparison()
    {
        Sum();
        auto const* const comparison = TakeSymbol(COMPARISONS);
        if (!comparison)
            return;
        Sum();
        Add(comparison->code);
        auto const behind = m_offset;
        if (TakeSymbol(COMPARISONS))
        {
            m_offset = behind;
            SkipBlanks();
            Fail("a comparison that is compared again stands in parentheses");
        }
    }

    void Sum()
    {
        Product();
        while (auto const* const symbol = TakeSymbol(SUMS))
        {
            Product();
            Add(symbol->code);
        }
    }

    void Product()
    {
        Signed();
        while (auto const* const symbol = TakeSymbol(PRODUCTS))
        {
            Signed();
            Add(symbol->code);
        }
    }

    void Signed()
    {
        Level const level(*this);
        if (auto const* const symbol = TakeSymbol(SUMS))
        {
            Signed();
            if (symbol->code == Code::Subtract)
                Add(Code::Negate);
            return;
        }
        Primary();
        if (TakeSymbol(POWERS))
        {
            Signed();
            Add(Code::Power);
        }
    }

    void Primary()
    {
        SkipBlanks();
        if (Peek() == '(')
        {
            ++m_offset;
            Comparison();
            CloseParenthesis();
        }
        else if (IsNameStart(Peek()))
            Named();
        else if (IsDigit(Peek()) || (Peek() == '.' && IsDigit(Peek(1))))
            Number();
        else
            Fail("expected a number, a " + m_names.Kind() + ", a function or \"(\", but found "
                 + Found());
    }

    void CloseParenthesis()
    {
        SkipBlanks();
        if (Peek() != ')')
            Fail("expected an operator or \")\", but found " + Found());
        ++m_offset;
    }

    std::string TakeName()
    {
        auto const name = LeadingName(std::string_view(m_text).substr(m_offset));
        m_offset += name.size();
        return std::string(name);
    }

    /// A variable or a function.
    void Named()
    {
        auto const begin = m_offset;
        auto const name = TakeName();
        if (Peek() == '.' && IsNameStart(Peek(1)))
        {
            ++m_offset;
            Variable(name, begin);
            return;
        }
        SkipBlanks();
        if (Peek() == '(')
        {
            Function(name, begin);
            return;
        }
        m_offset = begin;
        Fail("a " + m_names.Kind() + " is written with its " + m_names.OwnerKind() + ", as "
             + m_names.Owner() + "." + name + ", but " + Quoted(name) + " stands alone");
    }

    /// `owner` began at the place `begin`; what is behind its dot follows.
    void Variable(std::string const& owner, std::size_t begin)
    {
        try
        {
            auto const found = m_names.Find(owner, std::string_view(m_text).substr(m_offset));
            m_offset += found.length;
            m_steps.push_back({Code::Variable, 0.0, found.values});
        }
        catch (Error const& error)
        {
            throw ExpressionError(error.what(), begin);
        }
    }

    /// From the opening parenthesis to the closing one.
    void Function(std::string const& name, std::size_t begin)
    {
        auto const* const function = std::find_if(std::begin(FUNCTIONS), std::end(FUNCTIONS),
                                                  [&](auto const& f) { return f.text == name; });
        if (function == std::end(FUNCTIONS))
            throw ExpressionError("there is no function " + Quoted(name)
                                      + "; the functions are: exp, log, ones, sqrt",
                                  begin);
        ++m_offset;
        SkipBlanks();
        if (function->code == Code::Ones && Peek() == ')')
        {
            ++m_offset;
            m_steps.push_back({Code::Number, 1.0});
            return;
        }
        Comparison();
        CloseParenthesis();
        Add(function->code);
    }

    void Number()
    {
        auto const begin = m_offset;
        // All that could belong to it is taken together, so that "1.2.3" and "5abc" are one mistake;
        // but a dot before an operator is the operator's.
        auto const isDot = [&]
        { return Peek() == '.' && Peek(1) != '*' && Peek(1) != '/' && Peek(1) != '^'; };
        for (char last = '0'; IsNamePart(Peek()) || isDot()
                              || ((Peek() == '+' || Peek() == '-') && (last == 'e' || last == 'E'));
             ++m_offset)
            last = Peek();
        auto const text = m_text.substr(begin, m_offset - begin);
        double value = 0.0;
        auto const result = std::from_chars(text.data(), text.data() + text.size(), value);
        if (result.ptr != text.data() + text.size() || result.ec == std::errc::invalid_argument)
            throw ExpressionError("expected a number, but found " + Quoted(text), begin);
        if (result.ec == std::errc::result_out_of_range)
            throw ExpressionError("the number " + Quoted(text)
                                      + " is beyond what can be stored, about 1e-308 to 1e308 in size",
                                  begin);
        m_steps.push_back({Code::Number, value});
    }

    std::string const& m_text;
    ExpressionNames const& m_names;
    std::size_t m_offset = 0;
    int m_depth = 0;
    Steps m_steps;
};

// ------------------------------------------------------------------------------------- computing

using Values = Eigen::Map<Eigen::ArrayXd>;
using ConstValues = Eigen::Map<Eigen::ArrayXd const>;

/// The function of the C library takes 1 to any power and any number to the power of 0 for 1, even
/// where the other one is missing.
double PowerOf(double base, double exponent)
{
    if (std::isnan(base) || std::isnan(exponent))
        return MISSING;
    return std::pow(base, exponent);
}

template <class Compare>
double Compared(double left, double right, Compare const& compare)
{
    if (std::isnan(left) || std::isnan(right))
        return MISSING;
    return compare(left, right) ? 1.0 : 0.0;
}

/// A place of the stack: a block of values, or one number for all.
struct Operand
{
    double const* values = nullptr;
    double number = 0.0;
};

/// Runs a program on one block of observations after the other.
class Machine
{
public:
    explicit Machine(Steps const& steps)
        : m_steps(steps), m_stack(steps.size()), m_buffers(BLOCK, Depth(steps))
    {
    }

    /// Writes the values of the `count` observations from `first` on to `out`.
    void Run(Eigen::Index first, Eigen::Index count, double* out)
    {
        m_top = 0;
        m_count = count;
        for (auto const& step : m_steps)
            Execute(step, first);
        auto const& result = m_stack[0];
        if (result.values)
            Values(out, count) = ConstValues(result.values, count);
        else
            Values(out, count).setConstant(result.number);
    }

private:
    static bool IsBinary(Code code) { return code >= Code::Add && code <= Code::NotEqual; }

    static Eigen::Index Depth(Steps const& steps)
    {
        Eigen::Index depth = 0;
        Eigen::Index deepest = 1;
        for (auto const& step : steps)
        {
            if (step.code == Code::Number || step.code == Code::Variable)
                deepest = std::max(deepest, ++depth);
            else if (IsBinary(step.code))
                --depth;
        }
        return deepest;
    }

    void Execute(Step const& step, Eigen::Index first)
    {
        using A = ConstValues;
        switch (step.code)
        {
        case Code::Number:
            m_stack[m_top++] = {nullptr, step.number};
            return;
        case Code::Variable:
            m_stack[m_top++] = {step.variable + first, 0.0};
            return;
        case Code::Add:
            return Binary([](auto const& a, auto const& b) { return a + b; });
        case Code::Subtract:
            return Binary([](auto const& a, auto const& b) { return a - b; });
        case Code::Multiply:
            return Binary([](auto const& a, auto const& b) { return a * b; });
        case Code::Divide:
            return Binary([](auto const& a, auto const& b) { return a / b; });
        case Code::Power:
            return Power();
        case Code::Less:
            return Compare(std::less<>());
        case Code::LessOrEqual:
            return Compare(std::less_equal<>());
        case Code::Greater:
            return Compare(std::greater<>());
        case Code::GreaterOrEqual:
            return Compare(std::greater_equal<>());
        case Code::Equal:
            return Compare(std::equal_to<>());
        case Code::NotEqual:
            return Compare(std::not_equal_to<>());
        case Code::Negate:
            return Unary([](A const& a) { return -a; });
        case Code::Ones:
            return Unary([](A const& a)
                         { return a.unaryExpr([](double x) { return std::isnan(x) ? x : 1.0; }); });
        case Code::Sqrt:
            return Unary([](A const& a) { return a.sqrt(); });
        // The toolkit for matrices has its own functions for whole packets of numbers, which give
        // other values than those for the last numbers of a block: equal observations must stay equal.
        case Code::Exp:
            return Unary([](A const& a) { return a.unaryExpr([](double x) { return std::exp(x); }); });
        case Code::Log:
            return Unary([](A const& a) { return a.unaryExpr([](double x) { return std::log(x); }); });
        }
    }

    /// Where the values of the place `place` are kept, if they are made here.
    Values Buffer(std::size_t place)
    {
        return {m_buffers.col(static_cast<Eigen::Index>(place)).data(), m_count};
    }

    template <class Function>
    void Unary(Function const& function)
    {
        auto& operand = m_stack[m_top - 1];
        if (!operand.values)
        {
            double value;
            Values(&value, 1) = function(ConstValues(&operand.number, 1));
            operand.number = value;
            return;
        }
        Buffer(m_top - 1) = function(ConstValues(operand.values, m_count));
        operand.values = Buffer(m_top - 1).data();
    }

    /// Works on two blocks, or on a block and a number, which is then an array of one value that
    /// `function` sees repeated.
    template <class Function>
    void Binary(Function const& function)
    {
        --m_top;
        auto& left = m_stack[m_top - 1];
        auto const right = m_stack[m_top];
        auto const block = [&](Operand const& o) { return ConstValues(o.values, m_count); };
        auto const repeated
            = [&](Operand const& o) { return Eigen::ArrayXd::Constant(m_count, o.number); };
        if (!left.values && !right.values)
        {
            double value;
            Values(&value, 1) = function(ConstValues(&left.number, 1), ConstValues(&right.number, 1));
            left.number = value;
            return;
        }
        auto out = Buffer(m_top - 1);
        if (left.values && right.values)
            out = function(block(left), block(right));
        else if (left.values)
            out = function(block(left), repeated(right));
        else
            out = function(repeated(left), block(right));
        left.values = out.data();
    }

    void Power()
    {
        auto const& exponent = m_stack[m_top - 1];
        if (!exponent.values && exponent.number == 2.0)
        {
            --m_top;
            return Unary([](ConstValues const& a) { return a * a; });
        }
        Binary([](auto const& a, auto const& b) { return a.binaryExpr(b, &PowerOf); });
    }

    template <class Function>
    void Compare(Function const& compare)
    {
        Binary(
            [&](auto const& a, auto const& b)
            {
                return a.binaryExpr(b, [compare](double left, double right)
                                    { return Compared(left, right, compare); });
            });
    }

    Steps const& m_steps;
    std::vector<Operand> m_stack;
    Eigen::MatrixXd m_buffers; ///< One column for each place of the stack.
    std::size_t m_top = 0;
    Eigen::Index m_count = 0;
};

/// Counts what is missing and infinite among `count` values from `first` on, and makes one NaN of all.
void Count(Steps const& steps, Eigen::Index first, Eigen::Index count, Computed& computed)
{
    for (Eigen::Index row = first; row < first + count; ++row)
    {
        auto& value = computed.values[row];
        if (std::isfinite(value))
            continue;
        if (!std::isnan(value))
        {
            ++computed.infinite;
            continue;
        }
        value = MISSING;
        ++computed.missing;
        computed.undefined += std::none_of(
            steps.begin(), steps.end(),
            [&](Step const& step) { return step.variable && std::isnan(step.variable[row]); });
    }
}
/// The variables of datasets that have as many observations as one of them.
class DatasetNames : public ExpressionNames
{
public:
    DatasetNames(std::string const& name, DatasetMap const& datasets)
        : m_name(name), m_datasets(datasets)
    {
    }

    Eigen::Index Rows() const override { return m_datasets.at(m_name)->data.rows(); }

    Found Find(std::string const& owner, std::string_view rest) const override
    {
        std::string const name(LeadingName(rest));
        auto const found = m_datasets.find(owner);
        if (found == m_datasets.end())
            throw Error("there is no dataset " + Quoted(owner));
        auto const& dataset = *found->second;
        auto const column = FindVariable(dataset, name);
        if (column == 0)
            throw Error("the dataset " + Quoted(owner) + " has no variable " + Quoted(name));
        if (HoldsText(dataset, column))
            throw Error("the variable " + owner + "." + name + " holds text");
        if (dataset.data.rows() != Rows())
            throw Error("the dataset " + Quoted(owner) + " has " + std::to_string(dataset.data.rows())
                        + " observations, and " + Quoted(m_name) + " has " + std::to_string(Rows()));
        return {dataset.data.col(column).data(), name.size()};
    }

    std::string Kind() const override { return "variable"; }
    std::string OwnerKind() const override { return "dataset"; }
    std::string Owner() const override { return m_name; }

private:
    std::string const& m_name;
    DatasetMap const& m_datasets;
};

/// The operator whose values are those of the program.
std::string ComparisonOf(Steps const& steps)
{
    auto const* const symbol
        = std::find_if(std::begin(COMPARISONS), std::end(COMPARISONS),
                       [&](Symbol const& s) { return s.code == steps.back().code; });
    return symbol == std::end(COMPARISONS) ? std::string() : std::string(symbol->text);
}
} // namespace

ExpressionNames::~ExpressionNames() = default;

std::string_view LeadingName(std::string_view text)
{
    return text.substr(0, static_cast<std::size_t>(
                              std::find_if_not(text.begin(), text.end(), IsNamePart) - text.begin()));
}

Computed Compute(std::string const& expression, ExpressionNames const& names, char const* work,
                 Progress& progress)
{
    auto const steps = Reader(expression, names).Read();
    auto const rows = names.Rows();
    ProgressScope scope(progress, work);
    Computed computed;
    computed.comparison = ComparisonOf(steps);
    computed.values.resize(rows);
    Machine machine(steps);
    for (Eigen::Index first = 0; first < rows; first += BLOCK)
    {
        auto const count = std::min(BLOCK, rows - first);
        machine.Run(first, count, computed.values.data() + first);
        Count(steps, first, count, computed);
        if (first / BLOCK % REPORT_EVERY == 0)
            scope.Update(static_cast<std::uint64_t>(first + count), static_cast<std::uint64_t>(rows));
    }
    return computed;
}

Computed Compute(std::string const& expression, std::string const& name, DatasetMap const& datasets,
                 Progress& progress)
{
    return Compute(expression, DatasetNames(name, datasets), "Computing the variable", progress);
}
} // namespace workbench
