#pragma once

#include <wx/sizer.h>

namespace zenqo
{
/// Adds a window or sizer with flags that the toolkit's consistency check may refuse together
/// (an alignment beside `wxEXPAND`, a vertical alignment in a vertical box).
///
/// The alignment is kept from the check and set on the finished item, so the item carries exactly
/// `flags`, the layout is the same, and a host that keeps assertions on sees none.
template <class Child>
wxSizerItem* AddWithFlags(wxSizer* sizer, Child* child, int proportion, int flags, int border)
{
    wxSizerItem* const item = sizer->Add(child, proportion, flags & ~wxALIGN_MASK, border);
    item->SetFlag(flags);
    return item;
}
} // namespace zenqo
