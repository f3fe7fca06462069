// SPDX-License-Identifier: Apache-2.0
// Writes sound inputs as files, for libFuzzer to begin with: a folder for each target, one with the
// PDUs of the tests for fuzz_mmspdu and fuzz_acsireport together.
#include "recordings.h"
#include "samples.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

bool write(const std::filesystem::path &path, const std::vector<std::uint8_t> &octets)
{
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char *>(octets.data()),
               static_cast<std::streamsize>(octets.size()));
    if (!file.flush())
        std::cerr << "fuzz_seeds: " << path << " cannot be written.\n";
    return file.good();
}

bool write(const std::filesystem::path &folder,
           const std::vector<std::vector<std::uint8_t>> &inputs)
{
    bool isWritten = true;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        isWritten = write(folder / std::to_string(i + 1), inputs[i]) && isWritten;
    return isWritten;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "fuzz_seeds: the folder for the files is needed.\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    bool isWritten = write(folder / "discovery", fuzz::discoveryRecordings());
    isWritten = write(folder / "reportstream", fuzz::reportRecordings()) && isWritten;
    isWritten = write(folder / "lastentries", fuzz::lastEntriesFiles()) && isWritten;
    for (const wiretest::Sample &sample : wiretest::samples())
        isWritten = write(folder / "pdu" / sample.name, mms::encode(sample.pdu)) && isWritten;
    return isWritten ? 0 : 1;
}
