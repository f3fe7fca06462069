// SPDX-License-Identifier: Apache-2.0
// Writes the PDUs of the tests as files, for libFuzzer to begin with: one folder for fuzz_mmspdu and
// fuzz_acsireport together.
#include "samples.h"

#include <filesystem>
#include <fstream>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "fuzz_seeds: the folder for the files is needed.\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    for (const mmstest::Sample &sample : mmstest::samples()) {
        const auto octets = mms::encode(sample.pdu);
        std::ofstream file(folder / sample.name, std::ios::binary);
        file.write(reinterpret_cast<const char *>(octets.data()),
                   static_cast<std::streamsize>(octets.size()));
        if (!file.flush()) {
            std::cerr << "fuzz_seeds: " << (folder / sample.name) << " cannot be written.\n";
            return 1;
        }
    }
    return 0;
}
