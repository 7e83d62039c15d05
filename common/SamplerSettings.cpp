#include "common/SamplerSettings.h"

#include <cstdlib>

#include "common/Text.h"

namespace zenqo
{
unsigned long long LargeSetting(wxString const& text)
{
    wxULongLong_t number = 0;
    text.ToULongLong(&number, 10);
    return number;
}

int SmallSetting(wxString const& text)
{
    return static_cast<int>(std::strtol(ToNarrow(text).c_str(), nullptr, 10));
}
} // namespace zenqo
