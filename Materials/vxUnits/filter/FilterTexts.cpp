#include "filter/FilterTexts.h"

#include <array>

namespace vxUnits {

namespace {

constexpr std::array<MessageText, static_cast<std::size_t>(FilterText::Count)> texts{{
    {"filter.quote-not-closed", "A quotation mark is not closed."},
    {"filter.condition-missing-before", R"(A condition is missing before "%1".)"},
    {"filter.condition-missing-after", R"(A condition is missing after "%1".)"},
    {"filter.parenthesis-not-closed", "A parenthesis is not closed."},
    {"filter.parenthesis-not-opened", "A parenthesis is closed but not opened."},
    {"filter.too-deep", R"(More than %1 parentheses and "not" are inside each other.)"},
    {"filter.quantity-missing-before", R"(A quantity is missing before "%1".)"},
    {"filter.quantity-missing-after", R"(A quantity is missing after "%1".)"},
    {"filter.unknown-quantity", R"(No quantity is called "%1".)"},
    {"filter.value-missing", R"(A value is missing after "%1".)"},
    {"filter.two-comparisons", R"("%1" follows a comparison; write "and" between two comparisons.)"},
    {"filter.quantity-first", "Write the quantity before the value."},
    {"filter.only-equal", R"(%1 is a word; only "=" and "!=" compare it.)"},
    {"filter.unknown-word", R"("%1" is not a value of %2, which is one of %3.)"},
    {"filter.switch-has-no-value", R"(%1 is a switch and has no value; write "has".)"},
    {"filter.range-is-not-compared", R"("%1" is a range; only "=" and "!=" compare it.)"},
    {"filter.range-end-missing", R"(The range "%1" needs a number on each side of "..".)"},
    {"filter.creep-in-system",
     "The unit of %1 depends on other values of each material; only numbers in SI compare it."},
    {"filter.unit-or-condition", R"("%1" is not a known unit; write "and" before another condition.)"},
    {"filter.searched-in-labels", R"(Searched in labels; did you mean "%1"?)"},
}};

} // namespace

Failure makeFailure(FaultCode code, FilterText text, std::vector<std::string> arguments, std::string suggestion)
{
    return {code, makeMessage(text, std::move(arguments)), std::move(suggestion)};
}

Message makeMessage(FilterText text, std::vector<std::string> arguments)
{
    const MessageText& one = texts[static_cast<std::size_t>(text)];
    return {one.id, one.english, std::move(arguments)};
}

void addFilterTexts(std::vector<MessageText>& collected)
{
    collected.insert(collected.end(), texts.begin(), texts.end());
}

} // namespace vxUnits
