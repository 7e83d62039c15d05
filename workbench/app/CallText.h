#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/arrstr.h>
#include <wx/string.h>

namespace workbench
{
inline std::string Narrow(wxString const& text) { return text.ToStdString(wxConvLibc); }

inline wxString Wide(std::string const& text) { return wxString(text.c_str(), wxConvLibc); }

/// Names with blanks between them; the one empty name of an empty choice gives an empty text.
inline std::string Joined(wxArrayString const& names)
{
    std::string joined;
    for (wxString const& name : names)
        joined += (joined.empty() ? "" : " ") + Narrow(name);
    return joined;
}

/// A matrix as the script language writes it, each number with as few digits as bring it back.
std::string MatrixText(Eigen::MatrixXd const& matrix);

/// A call of the script language, composed argument by argument:
///
///     auto const script = CallText("sort").Name("wages").Text("educ age").Done(); // sort(wages, "educ age");
class CallText
{
public:
    explicit CallText(std::string const& command) : m_text(command + "(") {}

    /// `name = command(...)`.
    CallText(std::string const& name, std::string const& command) : m_text(name + " = " + command + "(") {}

    /// An argument that is the name of an object.
    CallText& Name(std::string const& name) { return Add(name); }

    /// An argument in double quotes. The language has no way to write a double quote within.
    CallText& Text(std::string const& text) { return Add('"' + text + '"'); }

    /// An argument that is a matrix of one row.
    CallText& Row(std::vector<int> const& values)
    {
        std::string row;
        for (int const value : values)
            row += (row.empty() ? "" : ", ") + std::to_string(value);
        return Add("[" + row + "]");
    }

    /// An option, `"key"=value`.
    ///@{
    CallText& Option(std::string const& key, std::string const& value);
    CallText& Option(std::string const& key, double value);
    CallText& Option(std::string const& key, Eigen::MatrixXd const& value);
    ///@}

    /// A piece of script as a dialog composes it: options that begin with a comma, or nothing.
    CallText& Options(std::string const& fragment)
    {
        m_text += fragment;
        return *this;
    }

    /// The statement as a whole.
    std::string Done() const { return m_text + ");"; }

private:
    CallText& Add(std::string const& argument)
    {
        m_text += (m_isFirst ? "" : ", ") + argument;
        m_isFirst = false;
        return *this;
    }

    std::string m_text;
    bool m_isFirst = true;
};
} // namespace workbench
