#include "simulated/Transcript.h"

namespace qbsp::simulated {

namespace {

std::string line(std::string_view operation, std::initializer_list<std::string> arguments) {
    std::string text = std::string(operation) + "(";
    std::string_view separator;
    for (const std::string& argument : arguments) {
        text.append(separator).append(argument);
        separator = ", ";
    }
    return text + ")";
}

} // namespace

bool Transcript::fails() {
    if (beforeEach_)
        beforeEach_();
    ++operations_;
    return failing_ == operations_;
}

void Transcript::record(std::string_view operation, std::initializer_list<std::string> arguments) {
    note(line(operation, arguments));
}

void Transcript::record(std::string_view operation, std::initializer_list<std::string> arguments,
                        std::string_view result) {
    note(line(operation, arguments).append(" -> ").append(result));
}

void Transcript::failOperation(std::size_t number) {
    operations_ = 0;
    failing_ = number;
}

std::vector<std::string> Transcript::take() {
    return std::exchange(lines_, {});
}

} // namespace qbsp::simulated
