#pragma once

#include <wx/button.h>
#include <wx/grid.h>
#include <wx/html/htmlwin.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>
#include <wx/statline.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dialogs/data/DialogChecks.h"
#include "modelspec/NumberGridChecks.h"
#include "pickers/NotePanel.h"
#include "support/AsciiLocale.h"
#include "support/EngineForTests.h"
#include "support/Layout.h"

/// What the dialogs have in common that ask about an action on a model.
namespace action_checks
{
using dialog_checks::Accepts;
using dialog_checks::CheckBox;
using dialog_checks::Growing;
using Arguments = std::vector<std::string>;
using Items = std::vector<wxSizerItem*>;

constexpr char SENTINEL[] = "__Zenqo_SYSTEM_DEFAULT_STRING___";
constexpr char BROKEN[] = "This is a Zenqo internal error!";

/// Names outside ASCII.
std::string const ZURICH = "Z\xC3\xBCrich";
std::string const NIPPON = "\xE6\x97\xA5\xE6\x9C\xAC";

/// A name of a model with which sentences break otherwise at 320 pixels than at 380.
std::string const LONG_MODEL
    = "a very long name of a model of the demand for " + ZURICH + "'s money that goes on";

/// Formats in which the engine may want its input.
///@{
Eigen::IOFormat const TABBED(3, 0, "\t", "\n");
Eigen::IOFormat const FRAMED(Eigen::StreamPrecision, Eigen::DontAlignCols, " ; ", "|", "<", ">", "{\n",
                             "\n}");
Eigen::IOFormat const WORDED(6, 0, ", ", "; ", "(", ")", "begin ", " end");
///@}

inline wxString Wide(std::string const& text) { return wxString::FromUTF8(text); }

/// The label of a text wrapped at so many pixels.
inline wxString Wrapped(wxWindow* parent, wxString const& text, int width)
{
    wxStaticText label(parent, wxID_ANY, text);
    label.Wrap(width);
    return label.GetLabel();
}

/// The frame of the dialog; gives what lies between the sentence and the buttons.
inline Items CheckFrame(wxDialog& dialog, wxString const& title, std::string const& sentence, int width)
{
    CHECK(dialog.GetTitle() == title);
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL) == 0x20001818);
    CHECK(dialog.GetSize() == dialog.GetMinSize());
    auto* const sizer = dynamic_cast<wxBoxSizer*>(dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    std::size_t const count = sizer->GetItemCount();
    REQUIRE(count >= 2);
    auto* const text = dynamic_cast<wxStaticText*>(Item(sizer, 0)->GetWindow());
    REQUIRE(text);
    CHECK(text->GetParent() == &dialog);
    CHECK(text->GetLabel() == Wrapped(dialog.GetParent(), Wide(sentence), width));
    // The dialogs have one of two widths, and this name tells them apart.
    if (sentence.find(LONG_MODEL) != std::string::npos)
        CHECK(text->GetLabel() != Wrapped(dialog.GetParent(), Wide(sentence), 700 - width));
    CHECK(PlacementOf(Item(sizer, 0)) == Placement{0, wxEXPAND | wxALL, 7});
    dialog_checks::CheckRunAndCancel(Item(sizer, count - 1), dialog, "&OK");
    CHECK(dialog.FindWindow(wxID_OK)->GetParent() == &dialog);

    Items between;
    for (std::size_t i = 1; i + 1 < count; ++i)
        between.push_back(Item(sizer, i));
    return between;
}

/// The end of what lies between sentence and buttons is a line with a note under it.
inline void CheckNote(wxDialog& dialog, Items const& items, wxString const& text)
{
    REQUIRE(items.size() >= 2);
    auto* const line = dynamic_cast<wxStaticLine*>(items[items.size() - 2]->GetWindow());
    REQUIRE(line);
    CHECK(line->GetParent() == &dialog);
    CHECK(!line->IsVertical());
    CHECK(PlacementOf(items[items.size() - 2]) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT, 7});
    auto* const note = dynamic_cast<NotePanel*>(items.back()->GetWindow());
    REQUIRE(note);
    CHECK(note->GetParent() == &dialog);
    CHECK(PlacementOf(items.back()) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 7});
    // The note was told to make room for itself.
    CHECK(note->GetMinSize().x == 200);
    CHECK(Find<wxHtmlWindow>(note)->ToText().Trim(true).Trim(false) == text);
}

/// There is no note, and the line that would stand above it is in no sizer.
inline void CheckNoNote(wxDialog const& dialog)
{
    CHECK(!Find<NotePanel>(&dialog));
    auto const lines = FindAll<wxStaticLine>(&dialog);
    REQUIRE(lines.size() == 1);
    CHECK(lines[0]->GetParent() == &dialog);
    CHECK(!lines[0]->GetContainingSizer());
    CHECK(!lines[0]->IsVertical());
}

/// The dialog was centred when it had its size, or, without a note, while it still had the size with
/// which it began.
inline void CheckCentre(wxDialog const& dialog, wxSize const& size)
{
    wxRect const parent = dialog.GetParent()->GetScreenRect();
    wxSize const around = parent.GetSize() - size;
    wxPoint const off
        = dialog.GetPosition() - parent.GetPosition() - wxPoint(around.x / 2, around.y / 2);
    INFO("off by " << off.x << ", " << off.y);
    CHECK(std::abs(off.x) <= 1);
    CHECK(std::abs(off.y) <= 1);
}

/// A radio button as it stands in a sizer, where it begins a group or not.
inline wxRadioButton* CheckRadio(wxSizerItem const* item, wxString const& label, bool group, int flags)
{
    auto* const radio = dynamic_cast<wxRadioButton*>(item->GetWindow());
    REQUIRE(radio);
    CHECK(radio->GetLabel() == label);
    CHECK(radio->HasFlag(wxRB_GROUP) == group);
    CHECK(!radio->HasFlag(wxRB_SINGLE));
    CHECK(PlacementOf(item) == Placement{0, flags, 5});
    return radio;
}

/// Two of them in one column.
inline void CheckRadioPair(wxSizer* grid, wxString const& first, wxString const& second)
{
    REQUIRE(grid->GetItemCount() == 2);
    CheckRadio(Item(grid, 0), first, true, wxLEFT | wxRIGHT | wxTOP);
    CheckRadio(Item(grid, 1), second, false, wxLEFT | wxRIGHT | wxBOTTOM);
}

/// A grid whose cells have all the same size.
inline wxGridSizer* CheckEvenGrid(wxSizer* sizer, int rows, int columns)
{
    auto* const grid = dynamic_cast<wxGridSizer*>(sizer);
    REQUIRE(grid);
    CHECK(!dynamic_cast<wxFlexGridSizer*>(sizer));
    CHECK(grid->GetRows() == rows);
    CHECK(grid->GetCols() == columns);
    CHECK(grid->GetHGap() == 0);
    CHECK(grid->GetVGap() == 0);
    return grid;
}

/// The button for what the user defines, with "&Define" beside it.
inline void CheckDefineRow(wxSizer* sizer, wxString const& label)
{
    CHECK(Shape(sizer) == "1 row, 2 columns");
    REQUIRE(sizer->GetItemCount() == 2);
    CheckRadio(Item(sizer, 0), label, false, wxRIGHT);
    auto* const define = dynamic_cast<wxButton*>(Item(sizer, 1)->GetWindow());
    REQUIRE(define);
    CHECK(define->GetLabel() == "&Define");
    CHECK(define->GetMinSize() == wxSize(-1, 25));
    CHECK(!define->IsEnabled());
    CHECK(PlacementOf(Item(sizer, 1)) == Placement{0, wxRIGHT | wxBOTTOM, 5});
}

/// The box with the types; `count` of `labels`.
inline void CheckTypeBox(wxSizerItem const* item, wxString const& caption,
                         std::vector<wxString> const& labels)
{
    auto* const inner = CheckBox(item, caption, {0, wxEXPAND | wxALL, 7});
    CHECK(PlacementOf(inner) == Placement{1, wxEXPAND, 5});
    bool const three = labels.size() == 3;
    auto* const grid = CheckEvenGrid(inner->GetSizer(), three ? 2 : 1, 2);
    REQUIRE(grid->GetItemCount() == (three ? 4 : 2));
    std::vector<int> gaps(labels.size(), wxALL);
    if (three)
        gaps = {wxLEFT | wxTOP, wxRIGHT | wxTOP, wxLEFT | wxBOTTOM};
    wxFont const font(wxNORMAL_FONT->GetPointSize(), static_cast<wxFontFamily>(73), wxFONTSTYLE_ITALIC,
                      wxFONTWEIGHT_NORMAL, false, "Courier 10 Pitch");
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        auto* const radio = CheckRadio(Item(grid, i), labels[i], i == 0, gaps[i]);
        CHECK(radio->GetMinSize() == wxSize(190, -1));
        CHECK(radio->GetFont() == font);
        CHECK(radio->GetValue() == (i == 0));
    }
    if (three)
    {
        CHECK(Item(grid, 3)->IsSpacer());
        CHECK(PlacementOf(Item(grid, 3)) == Placement{0, wxRIGHT | wxBOTTOM, 5});
    }
}

/// The field with its label.
inline wxTextCtrl* CheckNameRow(wxSizerItem const* item, wxString const& label, wxString const& value)
{
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxALL, 7});
    auto* const row = dynamic_cast<wxFlexGridSizer*>(item->GetSizer());
    REQUIRE(row);
    CHECK(Shape(row) == "1 row, 2 columns, column 1 grows, gaps, not flexible in both directions");
    CHECK(row->GetFlexibleDirection() == wxHORIZONTAL);
    CHECK(row->GetVGap() == 0);
    CHECK(row->GetHGap() == 20);
    REQUIRE(row->GetItemCount() == 2);
    auto* const text = dynamic_cast<wxStaticText*>(Item(row, 0)->GetWindow());
    REQUIRE(text);
    CHECK(text->GetLabel() == label);
    CHECK(text->GetMinSize() == wxSize(-1, 20));
    CHECK(PlacementOf(Item(row, 0)) == Placement{0, wxALIGN_BOTTOM, 7});
    auto* const field = dynamic_cast<wxTextCtrl*>(Item(row, 1)->GetWindow());
    REQUIRE(field);
    CHECK(field->GetValue() == value);
    CHECK((field->GetWindowStyle() & (wxTE_MULTILINE | wxTE_READONLY | wxTE_PROCESS_ENTER)) == 0);
    CHECK(Item(row, 1)->GetFlag() == wxEXPAND);
    return field;
}

/// The box in which the horizon is set.
inline void CheckHorizon(wxSizerItem const* item, wxString const& label, int periods)
{
    auto* const inner = CheckBox(item, label, {1, wxEXPAND, 5});
    auto* const spin = dynamic_cast<wxSpinCtrl*>(inner->GetWindow());
    REQUIRE(spin);
    CHECK(spin->GetMin() == 1);
    CHECK(spin->GetMax() == 999);
    CHECK(spin->GetIncrement() == 1);
    CHECK(spin->GetValue() == periods);
    CHECK(spin->GetTextValue() == wxString::Format("%d", periods));
    CHECK(spin->GetName() == "wxSpinCtrl");
    CHECK(spin->HasFlag(wxSP_ARROW_KEYS));
    CHECK(!spin->HasFlag(wxSP_WRAP));
}

/// The row of boxes side by side, `shape` with a gap of 5 pixels between them.
inline wxSizer* CheckBoxRow(Items const& parts, int proportion, std::string const& shape,
                            std::size_t boxes)
{
    REQUIRE(!parts.empty());
    CHECK(PlacementOf(parts[0]) == Placement{proportion, wxEXPAND | wxALL, 5});
    auto* const row = dynamic_cast<wxFlexGridSizer*>(parts[0]->GetSizer());
    REQUIRE(row);
    CHECK(Shape(row) == shape + ", gaps");
    CHECK(row->GetHGap() == 5);
    CHECK(row->GetVGap() == 0);
    REQUIRE(row->GetItemCount() == boxes);
    return row;
}

/// The radio button with `label` among the dialog's own.
inline wxRadioButton* Radio(wxWindow const& dialog, wxString const& label)
{
    for (auto* const radio : FindAll<wxRadioButton>(&dialog))
        if (radio->GetLabel() == label)
            return radio;
    FAIL("there is no button " << label);
    return nullptr;
}

/// Selects the button as the user does.
inline void Choose(wxRadioButton* button)
{
    button->SetValue(true);
    wxCommandEvent event(wxEVT_RADIOBUTTON, button->GetId());
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
}

/// Does `press`, which makes `dialog` ask in another one, of which it is the parent; there `fill` is
/// done to the grid, and it answers `id` without having been on screen. Gives the other one.
template <class Asked, class Grid>
Asked* AnswerAsked(wxDialog& dialog, wxString const& title, std::function<void()> const& press, int id,
                   std::function<void(wxGrid*)> const& fill)
{
    Asked* asked = nullptr;
    ModalScript script;
    script.Then(
        [&](wxDialog* shown)
        {
            asked = dynamic_cast<Asked*>(shown);
            REQUIRE(asked);
            fill(Find<Grid>(asked));
            return id;
        });
    press();
    REQUIRE(script.Shown().size() == 1);
    CHECK(script.Shown()[0].parent == &dialog);
    CHECK(script.Shown()[0].caption == title);
    return asked;
}

/// The answer of a user who types 1.5 and -2 into the grid of a dialog below `dialog`, with `key` between
/// the two, and accepts.
template <class Asked>
ModalScript::Answer TypingTwo(wxDialog const& dialog, int key)
{
    return OnScreen(
        [&dialog, key]
        {
            auto* const shown = Find<Asked>(&dialog);
            number_grid_checks::GoTo(Find<wxGrid>(shown), 0, 0);
            TypeText("1.5");
            Press(key);
            TypeText("-2");
            Press(WXK_RETURN);
            Click(shown->FindWindow(wxID_OK));
        });
}

/// Adds a button to the group of `member`, selects it, and so leaves the dialog with a group of which
/// nothing is selected that it knows. The button goes with its parent.
inline void BreakGroup(wxRadioButton const* member)
{
    (new wxRadioButton(member->GetParent(), wxID_ANY, "stray"))->SetValue(true);
    REQUIRE(!member->GetValue());
}

/// What the field takes and what it refuses, with which of two warnings.
template <class Dialog>
void CheckNameCheck(Dialog& dialog, wxTextCtrl* field, char const* missing, char const* illegal)
{
    CHECK(RunDialog(dialog,
              [&]
              {
                  auto const refuses = [&](wxString const& text, char const* warning)
                  {
                      INFO("name: " << text);
                      field->SetValue(text);
                      CheckRefused(dialog, warning, [&] { CHECK(!Accepts(dialog)); });
                      CHECK(field->GetValue() == text);
                  };
                  g_checkedIds.clear();
                  refuses("", missing);
                  CHECK(g_checkedIds.empty());
                  Arguments const bad = {" ", "a b", " a", "2nd", "1", "a.b", "x-y", ZURICH, "\t"};
                  for (auto const& name : bad)
                      refuses(Wide(name), illegal);
                  CHECK(g_checkedIds == bad);
                  {
                      // What has no narrow form is an empty name to the engine, but not to the dialog.
                      AsciiLocale const ascii;
                      g_checkedIds.clear();
                      refuses(Wide(ZURICH), illegal);
                      CHECK(g_checkedIds == Arguments{""});
                  }
                  for (char const* good : {"p_", "x", "_", "a1", "ABC_2"})
                  {
                      field->SetValue(good);
                      CHECK(Accepts(dialog));
                      CHECK(field->GetValue() == good);
                  }
                  dialog.EndModal(wxID_CANCEL);
              })
          == wxID_CANCEL);
}

/// The engine's format for input is another one until the end of the scope.
class InputFormat
{
public:
    explicit InputFormat(Eigen::IOFormat const& format)
        : m_before(Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatInput)
    {
        Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatInput = format;
    }
    ~InputFormat() { Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatInput = m_before; }
    InputFormat(InputFormat const&) = delete;
    InputFormat& operator=(InputFormat const&) = delete;

private:
    Eigen::IOFormat m_before;
};

/// A list with another one behind it.
inline Arguments Joined(Arguments list, Arguments const& more)
{
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

/// So many names, the first of them odd.
inline Arguments ManyNames(int count)
{
    Arguments names = {"", " ", ZURICH, NIPPON, "a&b", "%s", "a\nb"};
    for (int i = static_cast<int>(names.size()); i < count; ++i)
        names.push_back("x" + std::to_string(i));
    return names;
}
} // namespace action_checks
