// The SHA-256 of bytes, in hexadecimal.
#pragma once

#include <openssl/evp.h>

#include <memory>
#include <new>
#include <string>
#include <string_view>

namespace tarn::fleet {

class Sha256 {
public:
    Sha256() : context_(EVP_MD_CTX_new()) { check(EVP_DigestInit_ex(context_.get(), EVP_sha256(), nullptr)); }

    void add(std::string_view bytes) { check(EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size())); }

    std::string finish() {
        constexpr char digits[] = "0123456789abcdef";
        unsigned char digest[EVP_MAX_MD_SIZE];
        unsigned int size = 0;
        check(EVP_DigestFinal_ex(context_.get(), digest, &size));
        std::string text;
        for (unsigned int i = 0; i < size; ++i) {
            text += digits[digest[i] >> 4];
            text += digits[digest[i] & 15];
        }
        return text;
    }

private:
    struct Free {
        void operator()(EVP_MD_CTX *context) const { EVP_MD_CTX_free(context); }
    };
    static void check(int result) {
        if (result != 1) throw std::bad_alloc();
    }

    std::unique_ptr<EVP_MD_CTX, Free> context_;
};

inline std::string sha256(std::string_view bytes) {
    Sha256 hash;
    hash.add(bytes);
    return hash.finish();
}

}  // namespace tarn::fleet
