#pragma once

#include <wx/arrstr.h>

#include "common/Text.h"

namespace zenqo
{
/// The names in a workspace map, in the map's order, as a list of the toolkit's text.
template <class Map>
wxArrayString KeysOf(Map const& map)
{
    wxArrayString keys;
    keys.Alloc(map.size());
    for (auto const& entry : map)
        keys.Add(ToWide(entry.first));
    return keys;
}
} // namespace zenqo
