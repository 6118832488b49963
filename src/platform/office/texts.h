#pragma once

#include <osl/file.hxx>
#include <rtl/ustring.hxx>
#include <string>
#include <string_view>

/// Texts between the program, which has UTF-8, and the office.
namespace gullymark::office {

/// A text for the office.
inline rtl::OUString text_of(std::string_view utf8) {
    return {utf8.data(), static_cast<sal_Int32>(utf8.size()), RTL_TEXTENCODING_UTF8};
}

/// A text of the office as UTF-8.
inline std::string utf8_of(const rtl::OUString& text) {
    return rtl::OUStringToOString(text, RTL_TEXTENCODING_UTF8).getStr();
}

/// The address of a file given by its full path.
inline rtl::OUString file_url(const std::string& path) {
    rtl::OUString url;
    osl::FileBase::getFileURLFromSystemPath(text_of(path), url);
    return url;
}

}  // namespace gullymark::office
