#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include <catch2/catch.hpp>

#include <wx/stattext.h>
#include <wx/stdpaths.h>
#include <wx/textctrl.h>

#include <sys/wait.h>

#include "engine/Globals.h"
#include "support/Find.h"
#include "support/Layout.h"
#include "support/Stage.h"
#include "support/TabOrder.h"

/// What the two Gibbs pickers have in common, checked for each of them.
namespace gibbs_checks
{
/// Other defaults of the engine until the end of the scope.
class Defaults
{
public:
    explicit Defaults(std::vector<double> const& values)
        : m_before(Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs)
    {
        Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs
            = Eigen::VectorXd::Map(values.data(), static_cast<Eigen::Index>(values.size()));
    }
    ~Defaults() { Zenqo_SYSTEM_NAMESPACE::GLOBAL_Gibbs = m_before; }
    Defaults(Defaults const&) = delete;
    Defaults& operator=(Defaults const&) = delete;

private:
    Eigen::VectorXd m_before;
};

/// The rows of the fields that all samplers have.
enum Row : std::size_t
{
    SAMPLES,
    BURNIN,
    CHAINS,
    THIN,
    SEED,
    REFRESH
};

inline std::string const BAD_BURNIN = "The burn-in value must be a\npositive ineteger.";
inline std::string const BAD_CHAINS = "The number of chains must be\na positive ineteger.";
inline std::string const BAD_THIN = "The thining parameter value must\nbe a positive ineteger.";
inline std::string const BAD_SEED = "The seed value must be a\npositive ineteger.";
inline std::string const BAD_REFRESH = "The refresh rate must be\na positive ineteger.";

template <class Picker>
wxTextCtrl* Field(Picker const* picker, std::size_t row)
{
    return Find<wxTextCtrl>(picker, row);
}

template <class Picker>
std::vector<wxString> Values(Picker const* picker)
{
    return {picker->GetSamples(), picker->GetBurnin(), picker->GetChains(), picker->GetThin(),
            picker->GetSeed()};
}

/// The message of ValidateInput; empty if all is well.
template <class Picker>
std::string Complaint(Picker const* picker)
{
    wxString message = "from before";
    bool const valid = picker->ValidateInput(message);
    CHECK(valid == message.empty());
    return message.ToStdString();
}

template <class Picker>
void Layout(std::vector<std::string> const& labels)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    CHECK((picker->GetWindowStyle() & ~(wxTAB_TRAVERSAL | wxBORDER_NONE)) == 0);
    auto const texts = FindAll<wxStaticText>(picker);
    auto const fields = FindAll<wxTextCtrl>(picker);
    REQUIRE(texts.size() == labels.size());
    REQUIRE(fields.size() == labels.size());
    auto* const column = picker->GetSizer();
    CHECK(Shape(column) == std::to_string(labels.size()) + " rows, 1 column, column 0 grows");
    REQUIRE(column->GetItemCount() == labels.size());
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        CAPTURE(i);
        CHECK(texts[i]->GetLabel() == labels[i]);
        CHECK(texts[i]->GetMinSize() == wxSize(180, 20));
        CHECK(fields[i]->GetMinSize() == wxSize(70, 23));
        long const style = i == CHAINS ? wxTE_RIGHT | wxTAB_TRAVERSAL : long(wxTE_RIGHT);
        CHECK((fields[i]->GetWindowStyle() & ~wxBORDER_MASK) == style);
        CHECK(PlacementOf(Item(column, i)) == Placement{1, wxEXPAND | wxTOP, i == 0 ? 3 : 0});
        auto* const line = Item(column, i)->GetSizer();
        CHECK(Shape(line) == "1 row, 2 columns, column 0 grows");
        REQUIRE(line->GetItemCount() == 2);
        CHECK(Item(line, 0)->GetWindow() == texts[i]);
        CHECK(PlacementOf(Item(line, 0)) == Placement{0, wxALIGN_BOTTOM | wxALL, 5});
        CHECK(Item(line, 1)->GetWindow() == fields[i]);
        CHECK(PlacementOf(Item(line, 1)) == Placement{0, wxALL, 5});
    }
}

template <class Picker>
void DefaultsAreTruncated()
{
    using Texts = std::vector<wxString>;
    Stage stage;
    auto const shown = [&](std::vector<double> const& defaults)
    {
        Defaults const scope(defaults);
        return Values(new Picker(stage.Frame()));
    };
    CHECK(Values(new Picker(stage.Frame())) == Texts{"20000", "10000", "1", "1", "42"});
    CHECK(shown({1, 2, 3, 4, 5, 6, 7}) == Texts{"1", "2", "3", "4", "5"});
    CHECK(shown({1999.999, -0.5, 2.999, -3.7, 0.1}) == Texts{"1999", "0", "2", "-3", "0"});
    CHECK(shown({1e12, 3e9, 3e9, -3e9, 4294967296.5})
          == Texts{"1000000000000", "3000000000", "2147483647", "-2147483648", "4294967296"});
    double const infinity = std::numeric_limits<double>::infinity();
    double const nan = std::numeric_limits<double>::quiet_NaN();
    CHECK(shown({infinity, -infinity, infinity, -infinity, nan})
          == Texts{"9223372036854775807", "-9223372036854775808", "2147483647", "-2147483648", "0"});
    CHECK(shown({1e300, -1e300, nan, nan, 1e19})
          == Texts{"9223372036854775807", "-9223372036854775808", "0", "0", "9223372036854775807"});

    // They are read when the panel is made, and not later.
    auto* const picker = new Picker(stage.Frame());
    Defaults const later({1, 2, 3, 4, 5});
    CHECK(Values(picker) == Texts{"20000", "10000", "1", "1", "42"});
}

template <class Picker>
void TextAsItStands()
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    for (auto const* text : {"", " 7 ", "abc", "\xCE\xB2", "18446744073709551616", "+1"})
    {
        auto const wide = wxString::FromUTF8(text);
        for (std::size_t row = SAMPLES; row <= SEED; ++row)
            Field(picker, row)->SetValue(wide);
        CHECK(Values(picker) == std::vector<wxString>(5, wide));
    }
    for (std::size_t row = SAMPLES; row <= SEED; ++row)
        Field(picker, row)->SetValue(wxString::Format("%d", static_cast<int>(row)));
    CHECK(Values(picker) == std::vector<wxString>{"0", "1", "2", "3", "4"});
}

/// One field that is looked at, with all that a conversion takes and all that it refuses.
template <class Picker>
void Conversions(std::size_t row, std::string const& complaint)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    auto* const field = Field(picker, row);
    for (auto const* good : {"0", "1", "007", "+5", " 7", "18446744073709551615", "-1"})
    {
        CAPTURE(good);
        field->SetValue(good);
        CHECK(Complaint(picker) == "");
    }
    for (auto const* bad : {"", " ", "3.5", "1e3", "7 ", "abc", "0x10", "--1", "+-1", "1,000",
                            "18446744073709551616", "-18446744073709551616", "\xEF\xBC\x91", "\xCE\xB2"})
    {
        CAPTURE(bad);
        field->SetValue(wxString::FromUTF8(bad));
        CHECK(Complaint(picker) == complaint);
    }
}

/// Every field is wrong at first, and they are put right one by one from the first that is told.
template <class Picker>
void OrderOfChecks(std::vector<std::pair<std::size_t, std::string>> const& checks)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    for (auto* field : FindAll<wxTextCtrl>(picker))
        field->SetValue("draws");
    for (auto const& [row, complaint] : checks)
    {
        CHECK(Complaint(picker) == complaint);
        Field(picker, row)->SetValue("0");
    }
    // The retained draws still hold letters.
    CHECK(Complaint(picker) == "");
    CHECK(picker->GetSamples() == "draws");
}

/// Tab goes from row to row, and what is typed there is read.
template <class Picker>
void ByHand(std::size_t rows, wxString const& name)
{
    Stage stage;
    auto* const picker = new Picker(stage.Frame());
    stage.Fill(picker);
    auto const fields = FindAll<wxTextCtrl>(picker);
    auto const order = TabOrder(fields[0]);
    CHECK(order == std::vector<wxWindow*>(fields.begin(), fields.end()));
    CHECK(order.size() == rows);

    Click(fields[SAMPLES]);
    Press('A', wxMOD_CONTROL);
    TypeText("many");
    Press(WXK_TAB);
    Press('A', wxMOD_CONTROL);
    TypeText("-1.5");
    CHECK(picker->GetSamples() == "many");
    CHECK(picker->GetBurnin() == "-1.5");
    CHECK(Complaint(picker) == BAD_BURNIN);
    Press('A', wxMOD_CONTROL);
    TypeText("500");
    CHECK(Complaint(picker) == "");
    Keep(Photograph(stage.Frame()), name);
}

/// Runs a test case of this program in a process of its own, which is to end itself with an
/// abort. Gives what it said.
inline std::string LastWords(std::string const& testCase)
{
    auto const program = wxStandardPaths::Get().GetExecutablePath().ToStdString(wxConvUTF8);
    std::string const command = "exec '" + program + "' '" + testCase + "' 2>&1";
    std::FILE* const output = popen(command.c_str(), "r");
    REQUIRE(output);
    std::string words;
    char buffer[4096];
    while (auto const got = std::fread(buffer, 1, sizeof buffer, output))
        words.append(buffer, got);
    int const status = pclose(output);
    CHECK(WIFSIGNALED(status));
    CHECK(WTERMSIG(status) == SIGABRT);
    return words;
}
} // namespace gibbs_checks
