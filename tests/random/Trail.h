#pragma once

#include <QString>

#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

class RandomUser;

/// One thing that the user does. What exactly it is depends on two numbers and on what is on the
/// screen, and on nothing else, so that a trail of steps can be walked again.
struct Step {
    std::size_t kind = 0; ///< a row of Kinds()
    unsigned a = 0;
    unsigned b = 0;
};
using Trail = std::vector<Step>;

struct StepKind {
    const char* name;
    int weight; ///< how often, beside the others
    void (RandomUser::*act)(unsigned a, unsigned b);
};

std::span<const StepKind> Kinds();

/// Steps without end, the same ones for the same seed.
class StepMaker {
public:
    explicit StepMaker(std::uint64_t seed);
    Step Next();

private:
    Step Of(const char* name);
    void Plan(std::string_view begun, const Step& step);

    std::mt19937_64 m_random;
    int m_all = 0;
    Trail m_planned; ///< the last one first
};

/// "Type 3 17; Tab 0 0"
QString Written(const Trail& trail);
/// Throws std::invalid_argument for a step that there is none of.
Trail ReadTrail(const QString& text);
