// Bodies of examples/: those that are measured, and all.
#ifndef DAKSDP_BENCH_BODIES_HPP
#define DAKSDP_BENCH_BODIES_HPP

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

struct body {
    std::string name;
    std::string text;
    std::string answer; // where examples/ has none, the offer answers itself
};

inline std::string example(const std::string &name)
{
    const auto path = std::filesystem::path(DAKSDP_EXAMPLES) / (name + ".sdp");
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::vector<body> measured_bodies()
{
    return {{"small_audio_offer", example("small_audio_offer"), example("small_audio_offer")},
            {"volte_offer", example("volte_offer"), example("volte_answer")},
            {"vilte_offer", example("vilte_offer"), example("vilte_answer")},
            {"msrp_file_transfer", example("msrp_file_transfer"), example("msrp_file_transfer")},
            {"many_media", example("many_media"), example("many_media")}};
}

// The measured bodies, and each of examples/ as its own answer.
inline std::vector<body> all_bodies()
{
    std::vector<body> bodies = measured_bodies();
    for (const auto &file : std::filesystem::directory_iterator(DAKSDP_EXAMPLES))
        if (file.path().extension() == ".sdp")
            bodies.push_back({file.path().stem(), example(file.path().stem()), example(file.path().stem())});
    return bodies;
}

#endif
