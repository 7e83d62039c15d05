#pragma once

#include <functional>

#include <wx/frame.h>
#include <wx/image.h>
#include <wx/string.h>

/// A shown top window on which a test puts the widget under test. It goes away, children and all,
/// at the end of the test.
class Stage
{
public:
    explicit Stage(wxSize size = wxSize(900, 700));
    ~Stage();
    Stage(Stage const&) = delete;
    Stage& operator=(Stage const&) = delete;

    /// The parent for the widgets.
    wxFrame* Frame() const { return m_frame; }

    /// Lets `widget` fill the window and runs the events until it is drawn.
    void Fill(wxWindow* widget);

private:
    wxFrame* m_frame;
};

/// Runs the event loop until nothing is pending, and at least for `milliseconds`.
void Pump(int milliseconds = 50);

/// Runs the event loop until `condition` holds; false if it did not within `milliseconds`.
bool PumpUntil(std::function<bool()> const& condition, int milliseconds = 5000);

/// Real input: the pointer moves there and clicks, keys go to the window that has the focus.
void ClickAt(wxWindow* window, wxPoint const& inClient, int button = wxMOUSE_BTN_LEFT);
void Click(wxWindow* window);
void Press(int keyCode, int modifiers = wxMOD_NONE);
void TypeText(char const* text);

/// A photograph of what the screen shows of `window`.
wxImage Photograph(wxWindow* window);

/// Keeps a photograph among the test's output, as NAME.png in the folder that the environment
/// variable ZENQO_TEST_OUTPUT names (else the current folder).
void Keep(wxImage const& photograph, wxString const& name);
