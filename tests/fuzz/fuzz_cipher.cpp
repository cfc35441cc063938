// SPDX-License-Identifier: MIT
// Cipher strings of a settings file that somebody else wrote; and every plain text must come back.
#include "FuzzInput.h"
#include "settings/SettingsCipher.h"

#include <fuzzer/FuzzedDataProvider.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    FuzzedDataProvider data(bytes, size);
    SettingsCipher cipher(data.ConsumeIntegral<quint64>());
    cipher.setCompressionMode(static_cast<SettingsCipher::CompressionMode>(data.ConsumeIntegralInRange(0, 2)));
    cipher.setIntegrityProtectionMode(
        static_cast<SettingsCipher::IntegrityProtectionMode>(data.ConsumeIntegralInRange(0, 2)));
    const std::string rest = data.ConsumeRemainingBytesAsString();
    const auto content = QByteArray::fromStdString(rest);

    constexpr int mostBytes = 16 * 1024 * 1024;
    require(cipher.decryptToByteArray(content).size() <= mostBytes);
    static_cast<void>(cipher.decryptToString(QString::fromLatin1(content)));
    // Past the byte of the version, with any flags.
    static_cast<void>(cipher.decryptToByteArray("\x03" + content));
    require(cipher.decryptToByteArray(cipher.encryptToByteArray(content)) == content);
    return 0;
}
