#include "common/TypewriterFont.h"

namespace zenqo
{
wxFont TypewriterFont(int points)
{
    return wxFontInfo(points).Family(wxFONTFAMILY_MODERN).FaceName("Courier 10 Pitch");
}
} // namespace zenqo
