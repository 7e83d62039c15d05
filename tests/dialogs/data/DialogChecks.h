#pragma once

#include <wx/dialog.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>

#include "modelspec/RoleLayout.h"
#include "pickers/ListPairChecks.h"
#include "support/RunDialog.h"
#include "support/TabOrder.h"

/// What the dialogs that work on datasets have in common.
namespace dialog_checks
{
using namespace role_checks;

/// The vertical sizer of a dialog, which has the toolkit's own style unless another is told.
inline wxSizer* CheckFrame(wxDialog const& dialog, wxString const& title, std::size_t parts,
                           long style = wxDEFAULT_DIALOG_STYLE)
{
    CHECK(dialog.GetTitle() == title);
    CHECK((dialog.GetWindowStyle() & ~wxTAB_TRAVERSAL) == style);
    auto* const sizer = dynamic_cast<wxBoxSizer*>(dialog.GetSizer());
    REQUIRE(sizer);
    CHECK(sizer->GetOrientation() == wxVERTICAL);
    REQUIRE(sizer->GetItemCount() == parts);
    // As small as its contents let it be, and no smaller.
    CHECK(dialog.GetSize() == dialog.GetMinSize());
    return sizer;
}

/// The grid of one cell that grows both ways.
inline wxSizer* CheckCell(wxSizerItem const* item)
{
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND, 5});
    auto* const cell = CheckGrid(item->GetSizer(), 1, 1, {{0, 1}}, {{0, 1}});
    REQUIRE(cell->GetItemCount() == 1);
    return cell;
}

/// The box with a caption, which is seen whole, around so many things.
inline wxStaticBoxSizer* CheckBoxAround(wxSizerItem const* item, wxString const& label,
                                        Placement const& placement, std::size_t count = 1)
{
    CAPTURE(label);
    CHECK(PlacementOf(item) == placement);
    auto* const box = dynamic_cast<wxStaticBoxSizer*>(item->GetSizer());
    REQUIRE(box);
    CHECK(box->GetOrientation() == wxVERTICAL);
    auto const* const frame = box->GetStaticBox();
    CHECK(frame->GetLabel() == label);
    CHECK(frame->GetSize().x >= frame->GetTextExtent(frame->GetLabelText()).x);
    REQUIRE(box->GetItemCount() == count);
    return box;
}

/// The same, and the one thing in it.
inline wxSizerItem* CheckBox(wxSizerItem const* item, wxString const& label,
                             Placement const& placement = {0, wxEXPAND | wxALL, 5})
{
    return Item(CheckBoxAround(item, label, placement), 0);
}

/// The box of items below the picker, of which the first is chosen.
inline void CheckRadioBox(wxSizerItem const* item, wxRadioBox* box, wxString const& label,
                          std::vector<wxString> const& items, unsigned columns)
{
    CHECK(item->GetWindow() == box);
    CHECK(PlacementOf(item) == Placement{0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5});
    CHECK(box->GetLabel() == label);
    REQUIRE(box->GetCount() == items.size());
    for (unsigned i = 0; i < items.size(); ++i)
        CHECK(box->GetString(i) == items[i]);
    CHECK(box->GetColumnCount() == columns);
    CHECK(box->HasFlag(wxRA_SPECIFY_COLS));
    CHECK(box->GetSelection() == 0);
}

inline void CheckRunAndCancel(wxSizerItem const* item, wxDialog const& dialog,
                              wxString const& accept = "&Run")
{
    CHECK(PlacementOf(item)
          == Placement{0, wxLEFT | wxTOP | wxBOTTOM | wxALIGN_RIGHT | wxALIGN_BOTTOM, 5});
    auto* const row = dynamic_cast<wxStdDialogButtonSizer*>(item->GetSizer());
    REQUIRE(row);
    CHECK(row->GetAffirmativeButton() == dialog.FindWindow(wxID_OK));
    CHECK(row->GetCancelButton() == dialog.FindWindow(wxID_CANCEL));
    CHECK(dialog.FindWindow(wxID_OK)->GetLabel() == accept);
    CHECK(dialog.FindWindow(wxID_CANCEL)->GetLabel() == "&Cancel");
}

/// Where there is nothing to choose from, the button that moves does nothing and "Run" is refused.
inline void CheckNothingToChoose(wxDialog& dialog, wxButton* move, wxString const& warning)
{
    int const answer = RunDialog(dialog,
                                 [&]
                                 {
                                     Click(move);
                                     CheckRefused(dialog, warning,
                                                  [&] { Click(dialog.FindWindow(wxID_OK)); });
                                     Press(WXK_ESCAPE);
                                 });
    CHECK(answer == wxID_CANCEL);
}

/// The Tab key goes through `controls`, to "Cancel" and "Run" and to the dataset's row, and then to
/// the first again.
inline void CheckTabs(wxDialog& dialog, std::vector<wxWindow*> controls)
{
    controls.push_back(dialog.FindWindow(wxID_CANCEL));
    controls.push_back(dialog.FindWindow(wxID_OK));
    // The toolkit does not tell when the keyboard has come to a choice.
    controls.push_back(nullptr);
    RunDialog(dialog,
              [&]
              {
                  CHECK(TabOrder(controls.front(), 60) == controls);
                  dialog.EndModal(wxID_CANCEL);
              });
}

/// True if the handler of "&Run" lets the event go on, which ends the dialog.
template <class Dialog>
bool Accepts(Dialog& dialog)
{
    wxCommandEvent event(wxEVT_BUTTON, wxID_OK);
    event.Skip(false);
    dialog.OnButtonOk(event);
    return event.GetSkipped();
}
} // namespace dialog_checks
