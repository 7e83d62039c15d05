#include "workbench/estimation/SamplerProofs.h"

#include <catch2/catch.hpp>

namespace
{
using Proof = double (*)(RegressionSampler const& sampler);

double OffNorris(RegressionSampler const& sampler) { return OffCertified(sampler, Nist("Norris")); }

std::vector<std::pair<std::string, Proof>> const PROOFS = {{"certified values", OffNorris},
                                                           {"numerical integration", OffExact},
                                                           {"joint distribution", OffJoint},
                                                           {"coverage", OffCoverage},
                                                           {"marginal likelihood", OffMarginal}};
} // namespace

TEST_CASE("the sampler draws the certified coefficients of all regressions")
{
    for (auto const& regression : NistRegressions())
    {
        INFO(regression.name);
        CHECK(OffCertified(OurSampler(), regression) < FAR_OFF);
    }
}

TEST_CASE("all proofs hold of the sampler")
{
    for (auto const& [name, proof] : PROOFS)
    {
        INFO(name);
        CHECK(proof(OurSampler()) < FAR_OFF);
    }
}

TEST_CASE("all proofs hold of a sampler as the textbooks have it")
{
    for (auto const& [name, proof] : PROOFS)
    {
        INFO(name);
        CHECK(proof(Textbook(Fault::None)) < FAR_OFF);
    }
}

TEST_CASE(
    "each proof finds a wrong shape of tau's distribution and a wrong weight in the precision of beta")
{
    for (auto const fault : {Fault::Shape, Fault::Weight})
        for (auto const& [name, proof] : PROOFS)
        {
            INFO(name);
            CHECK(proof(Textbook(fault)) > FAR_OFF);
        }
}

TEST_CASE("most proofs find finer faults")
{
    CHECK(OffExact(Textbook(Fault::PriorMean)) > FAR_OFF);
    CHECK(OffJoint(Textbook(Fault::PriorMean)) > FAR_OFF);
    CHECK(OffNorris(Textbook(Fault::Residuals)) > FAR_OFF);
    CHECK(OffExact(Textbook(Fault::Residuals)) > FAR_OFF);
    CHECK(OffJoint(Textbook(Fault::Residuals)) > FAR_OFF);
}
