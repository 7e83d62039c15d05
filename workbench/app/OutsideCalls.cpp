#include "workbench/app/OutsideCalls.h"

#include <cstdint>

#include "workbench/app/CallText.h"
#include "workbench/outside/JagsText.h"
#include "workbench/outside/NameList.h"

namespace workbench
{
namespace
{
/// A list of names on one line, without quotes.
std::string OneLine(std::string const& typed) { return JoinNames(SplitNames(typed)); }
} // namespace

std::string JagsCall(JagsWish const& wish)
{
    auto call = wish.name.empty() ? CallText("jags") : CallText(wish.name, "jags");
    call.Text(wish.model).Text(OneLine(wish.data)).Text(OneLine(wish.monitors));
    if (auto const values = InitialValuesText(wish.initialValues); !values.empty())
        call.Option("inits", '"' + values + '"');
    Eigen::Index at = 0;
    for (char const* const key : {"draws", "burnin", "chains", "thin", "seed"})
        call.Option(key, std::to_string(static_cast<std::uint64_t>(wish.sampler[at++])));
    return call.Done();
}

std::string BridgeCall(std::string const& command, std::string const& script,
                       std::string const& handedOut, std::string const& handedBack)
{
    return CallText(command).Text(script).Text(OneLine(handedOut)).Text(OneLine(handedBack)).Done();
}
} // namespace workbench
