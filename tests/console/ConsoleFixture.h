#pragma once

#include <string>

#include <wx/textctrl.h>

#include "console/MainTextCtrl.h"
#include "console/ZenqoConsole.h"
#include "engine/Engine.h"
#include "support/Stage.h"

/// Sets the mode for the consoles made while it lives.
class Mode
{
public:
    explicit Mode(bool gui) : m_before(Zenqo_SYSTEM_NAMESPACE::RUN_GUI)
    {
        Zenqo_SYSTEM_NAMESPACE::RUN_GUI = gui;
    }
    ~Mode() { Zenqo_SYSTEM_NAMESPACE::RUN_GUI = m_before; }

private:
    bool m_before;
};

/// A console that fills a shown window, and its text control.
struct ConsoleOnStage
{
    explicit ConsoleOnStage(bool gui = true, wxSize size = wxSize(900, 700))
        : stage(size), mode(gui), console(new ZenqoConsole(stage.Frame()))
    {
        text = static_cast<MainTextCtrl*>(console->GetChildren().GetFirst()->GetData());
        stage.Fill(console);
    }

    std::string Value() const { return text->GetValue().ToStdString(wxConvUTF8); }

    /// The style of the character at `position`.
    wxTextAttr StyleAt(long position) const
    {
        wxTextAttr attr;
        text->GetStyle(position, attr);
        return attr;
    }

    /// Where `piece` stands first.
    long Find(char const* piece) const
    {
        return static_cast<long>(text->GetValue().find(wxString::FromUTF8(piece)));
    }

    Stage stage;
    Mode mode;
    ZenqoConsole* console;
    MainTextCtrl* text;
};
