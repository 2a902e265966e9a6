// SPDX-License-Identifier: Apache-2.0
// Registers in memory that a test can look into, and that refuse on demand.
#pragma once

#include "genicamexception.h"
#include "registerport.h"

#include <array>
#include <cstring>
#include <functional>
#include <set>
#include <vector>

class MemoryPort : public Cameras::GenICam::IRegisterPort
{
public:
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        ++reads;
        refuse(address, size);
        std::memcpy(data, m_bytes.data() + address, size);
    }

    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        ++writes;
        refuse(address, size);
        if (readOnly.count(address))
            throw GenICam::RuntimeException("write protected");
        std::memcpy(m_bytes.data() + address, data, size);
        if (onWrite)
            onWrite(address);
    }

    bool isConnected() const override { return !isLost; }

    /// A big-endian 32-bit register.
    std::uint32_t word(std::uint64_t address) const
    {
        std::uint32_t value = 0;
        for (std::size_t byte = 0; byte < 4; ++byte)
            value = value << 8 | m_bytes[address + byte];
        return value;
    }

    void setWord(std::uint64_t address, std::uint32_t value)
    {
        for (std::size_t byte = 0; byte < 4; ++byte)
            m_bytes[address + byte] = static_cast<std::uint8_t>(value >> (24 - 8 * byte));
    }

    void setFloat(std::uint64_t address, float value)
    {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        setWord(address, bits);
    }

    void setDouble(std::uint64_t address, double value)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        setWord(address, static_cast<std::uint32_t>(bits >> 32));
        setWord(address + 4, static_cast<std::uint32_t>(bits));
    }

    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }

    std::function<void(std::uint64_t address)> onWrite; ///< after each write
    std::set<std::uint64_t> refused;                    ///< neither read nor written
    std::set<std::uint64_t> readOnly;
    bool isLost = false; ///< nothing answers any more
    int reads = 0;
    int writes = 0;

private:
    void refuse(std::uint64_t address, std::size_t size) const
    {
        if (isLost)
            throw GenICam::RuntimeException("no answer");
        if (refused.count(address) || address + size > m_bytes.size())
            throw GenICam::RuntimeException("access denied");
    }

    std::vector<std::uint8_t> m_bytes = std::vector<std::uint8_t>(0x1000);
};
