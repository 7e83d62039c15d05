#pragma once

class wxButton;
class wxListBox;
class wxWindow;

namespace zenqo
{
/// The two directions that a transfer button shows: into the role list, and back out of it.
///@{
inline constexpr char MOVE_IN[] = ">>";
inline constexpr char MOVE_OUT[] = "<<";
///@}

/// The height in pixels of a control of one row beside `list`: that of the list's font and 12.
int OneRow(wxListBox const* list);

/// A button with the label ">>" and the height of one row of `list`. The face is monospaced, so that
/// both directions take the same room.
wxButton* MakeTransferButton(wxWindow* parent, wxListBox const* list, int width = 60);

/// True if the button's label says that a press moves into the role list.
bool MovesIn(wxButton const* button);
} // namespace zenqo
