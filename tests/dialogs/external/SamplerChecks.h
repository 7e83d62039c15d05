#pragma once

#include <wx/checkbox.h>
#include <wx/notebook.h>

#include "dialogs/external/InitsNotebook.h"
#include "dialogs/external/ProgramChecks.h"
#include "pickers/GibbsChecks.h"
#include "pickers/StorePicker.h"
#include "support/TabClicks.h"

/// What the dialogs for outside samplers have in common, checked for each of them.
namespace sampler_checks
{
using namespace program_checks;
using gibbs_checks::Defaults;
using gibbs_checks::Row;

constexpr unsigned long long MOST = 18446744073709551615ULL;

template <class Dialog, class Sampler>
struct Fixture
{
    wxTextCtrl* Setting(std::size_t row) { return gibbs_checks::Field(sampler, row); }
    wxWindow* Run() { return dialog.FindWindow(wxID_OK); }

    Stage stage;
    Dialog dialog{stage.Frame()};
    wxNotebook* notebook = Find<wxNotebook>(&dialog);
    InitsNotebook* inits = Find<InitsNotebook>(&dialog);
    Sampler* sampler = Find<Sampler>(&dialog);
    wxCheckBox* store = Find<wxCheckBox>(Find<StorePicker>(&dialog));
    wxTextCtrl* name = Find<wxTextCtrl>(Find<StorePicker>(&dialog));
};

inline std::vector<double> Numbers(Eigen::VectorXd const& vector)
{
    return {vector.data(), vector.data() + vector.size()};
}

/// The two columns under the title: notebook and settings.
struct Columns
{
    wxNotebook* notebook;
    wxSizer* settings;
};

inline Columns CheckSamplerFrame(wxDialog const& dialog, wxString const& title,
                                 wxString const& firstPage, int boxes)
{
    auto* const sizer = CheckFrame(dialog, title, 2, STYLE);
    CheckRunAndCancel(Item(sizer, 1), dialog);
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND, 5});
    auto* const columns = CheckGrid(Item(sizer, 0)->GetSizer(), 1, 2, {}, {{0, 10}, {1, 1}});
    REQUIRE(columns->GetItemCount() == 2);

    auto* const notebook = dynamic_cast<wxNotebook*>(Item(columns, 0)->GetWindow());
    REQUIRE(notebook);
    CHECK(PlacementOf(Item(columns, 0)) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    CHECK(notebook->GetParent() == &dialog);
    REQUIRE(notebook->GetPageCount() == 2);
    CHECK(notebook->GetSelection() == 0);
    CHECK(notebook->GetPageText(0) == firstPage);
    CHECK(notebook->GetPageText(1) == "Initial Values");
    CHECK(notebook->GetPage(0)->GetWindowStyle() == 0x280000);
    CHECK(notebook->GetPage(1)->HasFlag(wxTAB_TRAVERSAL));

    CHECK(PlacementOf(Item(columns, 1)) == Placement{0, wxEXPAND, 5});
    auto* const settings = CheckGrid(Item(columns, 1)->GetSizer(), boxes, 1, {{0, 5}}, {});
    REQUIRE(settings->GetItemCount() == static_cast<std::size_t>(boxes));
    return {notebook, settings};
}

/// The n-th box at the right.
inline wxStaticBoxSizer* CheckSettings(Columns const& columns, std::size_t n, wxString const& label)
{
    int const flags = wxEXPAND | wxRIGHT | wxBOTTOM | (n == 0 ? wxTOP : 0);
    return CheckBoxAround(Item(columns.settings, n), label, {0, flags, 5});
}

/// The n-th of the boxes on the first page.
inline wxStaticBoxSizer* CheckOnPage(wxSizer* page, std::size_t n, wxString const& label,
                                     std::size_t count = 1)
{
    int const flags = wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM | (n == 0 ? wxTOP : 0);
    return CheckBoxAround(Item(page, n), label, {1, flags, 3}, count);
}

inline void CheckInitsPage(Columns const& columns)
{
    auto* const page = columns.notebook->GetPage(1);
    auto* const sizer = dynamic_cast<wxBoxSizer*>(page->GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == 2);
    CHECK(dynamic_cast<InitsNotebook*>(Item(sizer, 0)->GetWindow()));
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{1, wxEXPAND, 0});
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxEXPAND, 5});
    auto* const line = CheckGrid(Item(sizer, 1)->GetSizer(), 1, 2, {}, {{1, 1}});
    REQUIRE(line->GetItemCount() == 2);
    std::string const points = std::to_string(wxNORMAL_FONT->GetPointSize()) + " points, modern";
    auto const isLabel = [&](std::size_t n, wxString const& label, wxSize const& size,
                             std::string const& font, Placement const& placement)
    {
        auto* const text = dynamic_cast<wxStaticText*>(Item(line, n)->GetWindow());
        REQUIRE(text);
        CHECK(text->GetLabel() == label);
        CHECK(text->GetMinSize() == size);
        CHECK(FontOf(text) == font);
        CHECK(text->GetFont().GetFaceName() == "Courier 10 Pitch");
        CHECK(PlacementOf(Item(line, n)) == placement);
    };
    isLabel(0, "Example:", wxSize(67, 23), points + ", bold", {0, wxLEFT, 5});
    isLabel(1, "beta = zeros(3,1), tau = 10, ...", wxSize(310, 23), points, {0, 1, 2});
}

template <class Dialog, class Sampler>
void StartsWithDefaults()
{
    Defaults const defaults({12345678901.9, 2000, 3, 4.5, 5});
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    CHECK(dialog.GetSamples() == 12345678901);
    CHECK(dialog.GetBurnin() == 2000);
    CHECK(dialog.GetChains() == 3);
    CHECK(dialog.GetThin() == 4);
    CHECK(dialog.GetSeed() == 5);
    CHECK(dialog.GetGibbsParams().size() == 0);
    CHECK(dialog.GetInits().empty());
    CHECK(dialog.GetData().empty());
    CHECK(dialog.GetScript().empty());
    CHECK(!dialog.GetStoreState());
    CHECK(dialog.GetModelName() == "NoStore");
}

/// Enter accepts at once: nothing but the sampler's settings is looked at.
template <class Dialog, class Sampler>
void AcceptsNothing()
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    fixture.store->SetValue(true);
    CHECK(RunDialog(dialog,
                    [&]
                    {
                        CHECK(fixture.Run()->HasFocus());
                        Press(WXK_RETURN);
                    })
          == wxID_OK);
    CHECK(dialog.GetScript().empty());
    CHECK(dialog.GetStoreState());
    CHECK(dialog.GetModelName().empty());
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{20000, 10000, 1, 1, 42});
}

/// Cancelling stores nothing; what "&Run" has stored stays.
template <class Dialog, class Sampler>
void Cancelled()
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    CheckWaysOut(dialog);
    CHECK(dialog.GetGibbsParams().size() == 0);
    CHECK(Accepts(dialog));
    fixture.Setting(Row::SAMPLES)->SetValue("7");
    CHECK(RunDialog(dialog, [&] { Click(dialog.FindWindow(wxID_CANCEL)); }) == wxID_CANCEL);
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{20000, 10000, 1, 1, 42});
    CHECK(dialog.GetSamples() == 7);
}

/// What is wrong is told, and stored all the same.
template <class Dialog, class Sampler>
void StoredThoughRefused()
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    using Vector = std::vector<double>;
    auto const refuses = [&](std::vector<char const*> const& texts, std::string const& warning,
                             Vector const& stored)
    {
        for (std::size_t row = 0; row < texts.size(); ++row)
            fixture.Setting(row)->SetValue(wxString::FromUTF8(texts[row]));
        CheckRefused(dialog, warning, [&] { CHECK(!Accepts(dialog)); });
        CHECK(Numbers(dialog.GetGibbsParams()) == stored);
    };
    RunDialog(dialog,
              [&]
              {
                  using namespace gibbs_checks;
                  double const most = 18446744073709551616.0;
                  refuses({"", "", "", "", ""}, BAD_BURNIN, {0, 0, 0, 0, 0});
                  refuses({"5", "1.5", "x", "x", "x"}, BAD_BURNIN, {5, 1, 0, 0, 0});
                  refuses({"draws", "7 ", "2", "3", "4"}, BAD_BURNIN, {0, 7, 2, 3, 4});
                  refuses({"-1", "18446744073709551616", "2", "3", "4"}, BAD_BURNIN, {most, 0, 2, 3, 4});
                  refuses({"+3", "18446744073709551615", "3.9", "3", "4"}, BAD_CHAINS,
                          {3, most, 3, 3, 4});
                  refuses({"1", "-1", "2\xCE\xB2", "\xCE\xB2", "4"}, BAD_CHAINS, {1, most, 2, 0, 4});
                  refuses({"1", "+2", "-3", "--4", ""}, BAD_THIN, {1, 2, -3, 0, 0});
                  refuses({"1", "2", "4294967297", "0", "18446744073709551616"}, BAD_SEED,
                          {1, 2, 1, 0, 0});
                  refuses({"\xEF\xBC\x91", "0", "0", "0", "\xEF\xBC\x91"}, BAD_SEED, {0, 0, 0, 0, 0});

                  // The samples alone may be anything, and what the conversions take passes.
                  fixture.Setting(Row::SAMPLES)->SetValue("some");
                  fixture.Setting(Row::BURNIN)->SetValue(" 0");
                  fixture.Setting(Row::CHAINS)->SetValue("-2");
                  fixture.Setting(Row::THIN)->SetValue("18446744073709551615");
                  fixture.Setting(Row::SEED)->SetValue("18446744073709551615");
                  CHECK(Accepts(dialog));
                  CHECK(Numbers(dialog.GetGibbsParams()) == Vector{0, 0, -2, -1, most});
                  CHECK(dialog.GetSeed() == MOST);
                  CHECK(dialog.GetThin() == -1);
                  CHECK(dialog.GetChains() == -2);
                  dialog.EndModal(wxID_CANCEL);
              });
}

/// Each getter reads its own field.
template <class Dialog, class Sampler>
void GettersOfSettings()
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    for (std::size_t row = Row::SAMPLES; row <= Row::SEED; ++row)
        fixture.Setting(row)->SetValue(wxString::Format("%zu", row + 11));
    CHECK(dialog.GetSamples() == 11);
    CHECK(dialog.GetBurnin() == 12);
    CHECK(dialog.GetChains() == 13);
    CHECK(dialog.GetThin() == 14);
    CHECK(dialog.GetSeed() == 15);
    CHECK(Accepts(dialog));
    // Read when "&Run" is pressed, and in this order.
    fixture.Setting(Row::SAMPLES)->SetValue("99");
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{11, 12, 13, 14, 15});
    CHECK(Accepts(dialog));
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{99, 12, 13, 14, 15});
}

/// Turns to the initial values and adds a second chain.
inline void AddChain(wxNotebook* notebook, InitsNotebook* inits)
{
    notebook->SetSelection(1);
    ClickTab(inits, 1);
    CHECK(TabTexts(inits) == std::vector<wxString>{"chain1", "chain2", ""});
}

/// A run described by hand, refused once and then accepted. `onFirstPage` fills what the dialogs have
/// each for themselves.
template <class Dialog, class Sampler>
void ByHand(std::function<void(Dialog&)> const& onFirstPage)
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    int const answer = RunDialog(
        dialog,
        [&]
        {
            Click(TextOf(&dialog, 0));
            TypeText("y, d.x");
            onFirstPage(dialog);
            AddChain(fixture.notebook, fixture.inits);
            Click(Find<wxTextCtrl>(fixture.inits->GetPage(1)));
            TypeText("t = 1");

            Click(Find<wxTextCtrl>(ScriptOf(&dialog)));
            TypeText("a file");
            Click(fixture.Setting(Row::CHAINS));
            Press('A', wxMOD_CONTROL);
            TypeText("2.5");
            CheckRefused(dialog, gibbs_checks::BAD_CHAINS, [&] { Click(fixture.Run()); });
            Click(fixture.Setting(Row::CHAINS));
            Press(WXK_END);
            Press(WXK_BACK);
            Press(WXK_BACK);
            Click(fixture.store);
            Click(fixture.name);
            TypeText("a b");
            // Enter accepts from a field of one line.
            Press(WXK_RETURN);
        });
    CHECK(answer == wxID_OK);
    CHECK(dialog.GetData() == "y, d.x");
    CHECK(dialog.GetInits() == std::map<std::string, std::string>{{"chain2", "t = 1"}});
    CHECK(dialog.GetScript() == "a file");
    CHECK(dialog.GetChains() == 2);
    CHECK(dialog.GetStoreState());
    CHECK(dialog.GetModelName() == "a b");
    CHECK(Numbers(dialog.GetGibbsParams()) == std::vector<double>{20000, 10000, 2, 1, 42});
    fixture.store->SetValue(false);
    CHECK(dialog.GetModelName() == "NoStore");
}

/// The Tab key goes from the page, whose controls are `onPage`, to the settings and the buttons. The tabs
/// of the notebook, and a drop-down list, have the keyboard without the toolkit's knowing.
template <class Dialog, class Sampler>
void Tabs(std::function<std::vector<wxWindow*>(Dialog&)> const& onPage, bool hasMethod)
{
    Fixture<Dialog, Sampler> fixture;
    auto& dialog = fixture.dialog;
    fixture.store->SetValue(true);
    fixture.name->Enable();
    auto controls = onPage(dialog);
    controls.push_back(Find<wxTextCtrl>(ScriptOf(&dialog)));
    controls.push_back(Find<wxButton>(ScriptOf(&dialog)));
    if (hasMethod)
        controls.push_back(nullptr);
    for (auto* const field : FindAll<wxTextCtrl>(fixture.sampler))
        controls.push_back(field);
    controls.push_back(fixture.store);
    controls.push_back(fixture.name);
    controls.push_back(dialog.FindWindow(wxID_CANCEL));
    controls.push_back(dialog.FindWindow(wxID_OK));
    controls.push_back(fixture.notebook);
    RunDialog(dialog,
              [&]
              {
                  CHECK(TabOrder(controls.front(), 40) == controls);
                  dialog.EndModal(wxID_CANCEL);
              });
}

/// Deleted in order, also while the user edits the initial values.
template <class Dialog>
void Deleted(std::function<std::vector<wxWindow*>(Dialog*)> const& inOrder)
{
    CheckDeleted<Dialog>(
        inOrder,
        [](Dialog* dialog)
        {
            auto* const inits = Find<InitsNotebook>(dialog);
            AddChain(Find<wxNotebook>(dialog), inits);
            auto* const field = Find<wxTextCtrl>(inits->GetPage(1));
            Click(field);
            TypeText("b");
            CHECK(field->HasFocus());
            CHECK(dialog->GetInits().size() == 1);
        });
}

/// All of these for one dialog.
template <class Dialog, class Sampler>
void CheckAll(std::function<void(Dialog&)> const& onFirstPage,
              std::function<std::vector<wxWindow*>(Dialog*)> const& deleted)
{
    SECTION("it starts with the engine's defaults") { StartsWithDefaults<Dialog, Sampler>(); }
    SECTION("it is accepted as it stands") { AcceptsNothing<Dialog, Sampler>(); }
    SECTION("Escape, Cancel and closing the window cancel") { Cancelled<Dialog, Sampler>(); }
    SECTION("what is refused is stored") { StoredThoughRefused<Dialog, Sampler>(); }
    SECTION("each getter reads its field") { GettersOfSettings<Dialog, Sampler>(); }
    SECTION("a run described by hand") { ByHand<Dialog, Sampler>(onFirstPage); }
    SECTION("it goes in order, also while it is used") { Deleted<Dialog>(deleted); }
}
} // namespace sampler_checks
