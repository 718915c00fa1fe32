// SPDX-FileCopyrightText: 2026 The Morvel developers
// SPDX-License-Identifier: MIT
#include "checks/name_text.h"

#include <cstdint>

namespace morvel::checks {

namespace {

// Decodes the character at text[at], moving at past it; an ill-formed byte stands for itself
// as a code point no letter table holds.
std::uint32_t next(std::string_view text, std::size_t& at) {
    const auto byte = static_cast<unsigned char>(text[at++]);
    if (byte < 0x80)
        return byte;
    std::size_t extra = 0;
    std::uint32_t code = 0;
    if ((byte & 0xE0U) == 0xC0U) {
        extra = 1;
        code = byte & 0x1FU;
    } else if ((byte & 0xF0U) == 0xE0U) {
        extra = 2;
        code = byte & 0x0FU;
    } else if ((byte & 0xF8U) == 0xF0U) {
        extra = 3;
        code = byte & 0x07U;
    } else {
        return 0xFFFFFFFFU;
    }
    for (std::size_t i = 0; i < extra; ++i) {
        if (at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U)
            return 0xFFFFFFFFU;
        code = (code << 6U) | (static_cast<unsigned char>(text[at++]) & 0x3FU);
    }
    return code;
}

void append(std::string& out, std::uint32_t code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0U | (code >> 6U));
        out += static_cast<char>(0x80U | (code & 0x3FU));
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0U | (code >> 12U));
        out += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        out += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
        out += static_cast<char>(0xF0U | (code >> 18U));
        out += static_cast<char>(0x80U | ((code >> 12U) & 0x3FU));
        out += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        out += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

bool isLetter(std::uint32_t c) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))
        return true;
    if (c >= 0xC0 && c <= 0x24F)
        return c != 0xD7 && c != 0xF7; // Latin letters, apart from × and ÷
    return (c >= 0x386 && c <= 0x3FF && c != 0x387) || (c >= 0x400 && c <= 0x481) ||
           (c >= 0x48A && c <= 0x52F) || (c >= 0x4E00 && c <= 0x9FFF);
}

std::uint32_t lower(std::uint32_t c) {
    if (c >= 'A' && c <= 'Z')
        return c + 32;
    if ((c >= 0xC0 && c <= 0xDE && c != 0xD7) || (c >= 0x391 && c <= 0x3AB && c != 0x3A2) ||
        (c >= 0x410 && c <= 0x42F))
        return c + 32;
    if (c >= 0x400 && c <= 0x40F)
        return c + 80;
    // Latin Extended-A pairs capital and small letters as even and odd neighbours, apart from
    // a stretch in the middle and the end that pairs them odd and even.
    if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149) {
        const bool oddFirst = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
        if (oddFirst ? (c % 2 == 1) : (c % 2 == 0))
            return c + 1;
    }
    return c;
}

} // namespace

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); next(text, at))
        ++count;
    return count;
}

bool isIdentifier(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::uint32_t c = next(text, at);
        if (!isLetter(c) && !(c >= '0' && c <= '9') && c != '_')
            return false;
    }
    return true;
}

std::string foldCase(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t from = at;
        const std::uint32_t c = next(text, at);
        if (c == 0xFFFFFFFFU)
            out.append(text.substr(from, at - from));
        else
            append(out, lower(c));
    }
    return out;
}

} // namespace morvel::checks
