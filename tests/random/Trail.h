#pragma once

#include <QString>

#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

class RandomUser;

/// One action of the user. It depends only on two numbers and on the screen, so that a trail of
/// steps can be repeated.
struct Step {
    std::size_t kind = 0; ///< a row of Kinds()
    unsigned a = 0;
    unsigned b = 0;
};
using Trail = std::vector<Step>;

struct KindOfStep {
    const char* name;
    int weight; ///< how often, relative to the others
    void (RandomUser::*act)(unsigned a, unsigned b);
};

std::span<const KindOfStep> Kinds();

/// An endless sequence of steps, always the same for the same seed.
class StepMaker {
public:
    explicit StepMaker(std::uint64_t seed);
    Step Next();

private:
    Step Of(const char* name);
    void Plan(std::string_view begun, const Step& step);

    std::mt19937_64 m_random;
    int m_all = 0;
    Trail m_planned; ///< the next one is the last element
};

/// "Type 3 17; Tab 0 0"
QString Written(const Trail& trail);
/// Throws std::invalid_argument for an unknown step.
Trail ReadTrail(const QString& text);
