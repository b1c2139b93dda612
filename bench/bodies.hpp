// The bodies that are measured, of examples/.
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

#endif
