// SPDX-License-Identifier: MIT
#include <cerrno>
#include <iconv.h>
#include <system_error>

#include "lists/text_converter.h"

namespace hx::lists {

namespace {

class IconvConverter : public TextConverter {
  public:
    explicit IconvConverter(iconv_t converter) : converter_(converter) {}
    ~IconvConverter() override { iconv_close(converter_); }
    IconvConverter(const IconvConverter&) = delete;
    IconvConverter& operator=(const IconvConverter&) = delete;

    Result convert(std::string_view bytes, std::string& text) override {
        const std::size_t before = text.size();
        text.resize(before + bytes.size() * 4);
        char* from = const_cast<char*>(bytes.data());  // which iconv only reads
        char* to = text.data() + before;
        std::size_t fromLeft = bytes.size(), toLeft = bytes.size() * 4;
        const bool complete = iconv(converter_, &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
        const int problem = complete ? 0 : errno;
        text.resize(text.size() - toLeft);
        const std::size_t taken = bytes.size() - fromLeft;
        // A text that grew beyond its room is taken up again where it stopped.
        if (problem == 0 || (problem == E2BIG && taken > 0)) return {taken, Stop::AtTheEnd};
        if (problem == EINVAL) return {taken, Stop::WithinACharacter};
        if (problem == EILSEQ) return {taken, Stop::AtNoText};
        throw std::system_error(problem, std::generic_category());
    }

  private:
    iconv_t converter_;
};

}  // namespace

std::unique_ptr<TextConverter> TextConverter::open(const std::string& encoding) {
    const iconv_t converter = iconv_open("UTF-8", encoding.c_str());
    if (converter != reinterpret_cast<iconv_t>(-1)) return std::make_unique<IconvConverter>(converter);
    if (errno != EINVAL) throw std::system_error(errno, std::generic_category());
    return nullptr;
}

}  // namespace hx::lists
