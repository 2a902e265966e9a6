// SPDX-License-Identifier: Apache-2.0
// Keeps the image decoders' own messages off standard error.
#pragma once

namespace ColorCalibrate {

/// While it lives, what is written to the process's standard error is dropped: the decoders write
/// to it directly, and their lines would stand beside the one that tells the user what is wrong.
/// For the main thread, around one call of a decoder; std::cerr must not be used meanwhile.
class DecoderOutput
{
public:
    DecoderOutput();
    ~DecoderOutput();
    DecoderOutput(const DecoderOutput&) = delete;
    DecoderOutput& operator=(const DecoderOutput&) = delete;

private:
    int m_standardError = -1;
};

} // namespace ColorCalibrate
