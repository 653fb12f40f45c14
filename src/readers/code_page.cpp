// Code pages are ICU's knowledge. Windows names them by number, and so does ICU for nearly all ("windows-1251"); the
// Macintosh pages of East Asia differ from their Windows relatives in a handful of characters and are read as these.

#include "readers/code_page.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <memory>
#include <string>

#include "core/utilities/encoding.h"

namespace zentlor::readers {
namespace {

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

std::string NameOf(int codePage) {
    switch (codePage) {
        case 10001:
            return "windows-932";
        case 10002:
            return "windows-950";
        case 10003:
            return "windows-949";
        case 10008:
            return "windows-936";
        case 28591:
            return "iso-8859-1";
        case 51932:
            return "euc-jp";
        default:
            return "windows-" + std::to_string(codePage);
    }
}

Converter Open(int codePage) {
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(NameOf(codePage).c_str(), &status));
    return U_SUCCESS(status) ? std::move(converter) : Converter();
}

// Called for bytes that mean nothing: gives their Windows-1252 characters instead.
void KeepVisible(const void* counter, UConverterToUnicodeArgs* args, const char* bytes, int32_t length,
                 UConverterCallbackReason reason, UErrorCode* status) {
    if (reason > UCNV_IRREGULAR) return;
    *static_cast<std::size_t*>(const_cast<void*>(counter)) += static_cast<std::size_t>(length);
    const Text shown = FromWindows1252({bytes, static_cast<std::size_t>(length)});
    *status = U_ZERO_ERROR;
    ucnv_cbToUWriteUChars(args, shown.data(), static_cast<int32_t>(shown.size()), 0, status);
}

DecodedText Decode(UConverter* converter, std::string_view bytes) {
    DecodedText result;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setToUCallBack(converter, KeepVisible, &result.undecodable, nullptr, nullptr, &status);
    char16_t buffer[2048];
    const char* source = bytes.data();
    const char* end = source + bytes.size();
    do {
        char16_t* target = buffer;
        status = U_ZERO_ERROR;
        ucnv_toUnicode(converter, &target, buffer + std::size(buffer), &source, end, nullptr, true, &status);
        result.text.append(buffer, target);
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    return result;
}

bool IsPlain(std::string_view bytes) {
    // All of them at once: without a way out in the middle this takes many a step.
    unsigned char any = 0;
    for (const char c : bytes) any |= static_cast<unsigned char>(c);
    return any < 0x80;
}

}  // namespace

DecodedText DecodeCodePage(std::string_view bytes, int codePage) {
    const bool asciiBased = codePage != 1200 && codePage != 1201;
    if (asciiBased && IsPlain(bytes)) return {Text(bytes.begin(), bytes.end()), 0};
    if (codePage == 0 || codePage == 1252) return {FromWindows1252(bytes), 0};
    const Converter converter = Open(codePage);
    if (!converter) return {FromWindows1252(bytes), 0};
    return Decode(converter.get(), bytes);
}

bool CodePageIsKnown(int codePage) {
    return codePage == 0 || codePage == 1252 || Open(codePage) != nullptr;
}

}  // namespace zentlor::readers
