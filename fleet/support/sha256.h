// The SHA-256 of bytes, in hexadecimal.
#pragma once

#include <openssl/evp.h>

#include <new>
#include <string>
#include <string_view>

namespace tarn::fleet {

inline std::string sha256(std::string_view bytes) {
    constexpr char digits[] = "0123456789abcdef";
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (EVP_Digest(bytes.data(), bytes.size(), digest, &size, EVP_sha256(), nullptr) != 1) throw std::bad_alloc();
    std::string text;
    for (unsigned int i = 0; i < size; ++i) {
        text += digits[digest[i] >> 4];
        text += digits[digest[i] & 15];
    }
    return text;
}

}  // namespace tarn::fleet
