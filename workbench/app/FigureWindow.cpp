#include "workbench/app/FigureWindow.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/filefn.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/splitter.h>
#include <wx/stattext.h>

#include "common/Text.h"
#include "dialogs/application/ExportFigureDialog.h"
#include "workbench/app/FigureView.h"
#include "workbench/app/Overwrite.h"
#include "workbench/engine/Error.h"
#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
char const* const TITLE = "Figures - Zenqo Workbench";
} // namespace

FigureWindow::FigureWindow(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, TITLE, wxDefaultPosition, wxSize(960, 600)),
      m_export(
          [this](std::string const& picture)
          {
              try
              {
                  WritePicture(m_exportPath, picture);
                  Tell("The figure is written to " + m_exportPath + ".");
              }
              catch (Error const& error)
              {
                  Tell(error.what());
              }
          },
          [this](std::string const& reason) { Tell(reason); })
{
    // As the workbench's own window: GTK complains of a window that is laid out before it has its size.
    m_deferShow = false;
    auto* const splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, GetClientSize(),
                                                wxSP_LIVE_UPDATE | wxSP_3DSASH);
    m_list = new wxListBox(splitter, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr,
                           wxLB_SINGLE | wxLB_HSCROLL);
    m_list->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ShowChosen(); });

    auto* const right = new wxPanel(splitter);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_view = new FigureView(right, [this](std::string const& message) { Tell(message); });
    sizer->Add(m_view, 1, wxEXPAND);
    m_message = new wxStaticText(right, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                                 wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE);
    MakeButtons(sizer);
    right->SetSizer(sizer);

    splitter->SetMinimumPaneSize(120);
    splitter->SplitVertically(m_list, right, 220);
    SetMinSize(wxSize(560, 360));
    Bind(wxEVT_CHAR_HOOK, &FigureWindow::OnCharHook, this);
    Bind(wxEVT_CLOSE_WINDOW,
         [this](wxCloseEvent& event)
         {
             if (event.CanVeto())
             {
                 event.Veto();
                 Hide();
             }
             else
                 Destroy();
         });
}

void FigureWindow::MakeButtons(wxSizer* sizer)
{
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    std::vector<wxAcceleratorEntry> keys;
    auto const add = [&](wxString const& label, wxString const& help, std::vector<wxAcceleratorEntry> own,
                         std::function<void()> action)
    {
        auto* const button = new wxButton(m_message->GetParent(), wxID_ANY, label);
        button->SetToolTip(help);
        // A key comes as the event of a menu, and from the window.
        button->Bind(wxEVT_BUTTON, [action](wxCommandEvent&) { action(); });
        Bind(wxEVT_MENU, [action](wxCommandEvent&) { action(); }, button->GetId());
        for (auto const& key : own)
            keys.emplace_back(key.GetFlags(), key.GetKeyCode(), button->GetId());
        row->Add(button, 0, wxLEFT, 8);
    };
    row->Add(m_message, 1, wxALIGN_CENTER_VERTICAL | wxLEFT, 8);
    add("C&opy", "Copies the picture as it is shown (Ctrl+C)", {{wxACCEL_CTRL, 'C', 0}},
        [this] { CopyPicture(); });
    add("&Export...", "Writes the figure to a PNG, SVG or PDF file (Ctrl+E)", {{wxACCEL_CTRL, 'E', 0}},
        [this] { Export(); });
    add("&Close", "Hides this window; View > Figures shows it again (Escape)",
        {{wxACCEL_NORMAL, WXK_ESCAPE, 0}, {wxACCEL_CTRL, 'W', 0}}, [this] { Close(); });
    sizer->Add(row, 0, wxEXPAND | wxALL, 8);
    SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(keys.size()), keys.data()));
}

void FigureWindow::Add(std::shared_ptr<Figure const> const& figure, std::string const& picture)
{
    // At first where it leaves the begin of the console in sight, later where the user has put it.
    if (m_entries.empty())
        Move(GetParent()->GetPosition() + wxPoint(120, 90));
    m_entries.push_back({figure, picture});
    wxString const title = zenqo::ToWide(figure->title);
    m_list->Append(wxString::Format("%zu  %s", m_entries.size(), title));
    m_list->SetSelection(static_cast<int>(m_entries.size()) - 1);
    m_list->EnsureVisible(m_list->GetSelection());
    BringUp();
    ShowChosen();
}

void FigureWindow::OnCharHook(wxKeyEvent& event)
{
    // After a selection by program GTK's own keys would begin where the user has clicked last.
    int const last = static_cast<int>(m_entries.size()) - 1;
    int chosen = m_list->GetSelection();
    switch (event.GetModifiers() == wxMOD_NONE ? event.GetKeyCode() : WXK_NONE)
    {
    case WXK_UP: --chosen; break;
    case WXK_DOWN: ++chosen; break;
    case WXK_HOME: chosen = 0; break;
    case WXK_END: chosen = last; break;
    default: event.Skip(); return;
    }
    if (chosen >= 0 && chosen <= last && chosen != m_list->GetSelection())
    {
        m_list->SetSelection(chosen);
        m_list->EnsureVisible(chosen);
        ShowChosen();
    }
}

void FigureWindow::BringUp()
{
    Show();
    if (IsIconized())
        Iconize(false);
    Raise();
    m_list->SetFocus();
}

void FigureWindow::ShowChosen()
{
    int const chosen = m_list->GetSelection();
    if (chosen == wxNOT_FOUND)
        return;
    auto const& entry = m_entries[static_cast<std::size_t>(chosen)];
    Tell({});
    m_view->Show(entry.figure, entry.picture);
    SetTitle(zenqo::ToWide(entry.figure->title) + " - " + TITLE);
}

void FigureWindow::CopyPicture()
{
    wxBitmap const& picture = m_view->GetPicture();
    if (!picture.IsOk() || !wxTheClipboard->Open())
        return;
    wxTheClipboard->SetData(new wxBitmapDataObject(picture));
    wxTheClipboard->Close();
    Tell("The picture is on the clipboard.");
}

void FigureWindow::Export()
{
    ExportFigureDialog dialog(this, true, zenqo::ToNarrow(wxFileName(wxGetCwd(), "figure.png").GetFullPath()));
    if (dialog.ShowModal() == wxID_OK)
        ExportTo(dialog.GetFileName(), wxSize(dialog.GetSize1(), dialog.GetSize2()));
}

void FigureWindow::ExportTo(wxFileName path, wxSize const& pixels)
{
    if (!path.HasExt())
        path.SetExt("png");
    if (!MayWrite(path, "Export Figure", this))
        return;
    auto const& figure = *m_entries[static_cast<std::size_t>(m_list->GetSelection())].figure;
    m_exportPath = zenqo::ToNarrow(path.GetFullPath());
    try
    {
        m_export.Begin(figure, SizedPicture(FormatOf(m_exportPath), pixels.x, pixels.y));
    }
    catch (Error const& error)
    {
        Tell(error.what());
    }
}

void FigureWindow::Tell(std::string const& message)
{
    m_message->SetLabelText(zenqo::ToWide(message));
    m_message->SetToolTip(zenqo::ToWide(message));
}
} // namespace workbench
