#pragma once

#include "filter/FilterTexts.h"
#include "filter/FilterTokens.h"
#include "filter/QuantityNames.h"
#include "vxUnits/Filter.h"

#include <string>
#include <string_view>
#include <vector>

namespace vxUnits {

/// The words of a filter expression that begin or end with the name of a quantity.
struct NamedWords
{
    std::size_t count = 0; ///< of the words of the name
    FilterQuantity quantity;
};

/// Returns the longest name of a quantity at the end of the words [first, last) of an expression; count is 0 if there is
/// none. Likewise at their start.
NamedWords quantityAtEnd(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                         std::size_t first, std::size_t last);
NamedWords quantityAtStart(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                           std::size_t first, std::size_t last);

/// A range without a comparison: "E 100..200 GPa".
struct RangeWords
{
    std::size_t name = 0;  ///< first word of the name of the quantity
    std::size_t value = 0; ///< first word of the value; 0 if there is no range
    FilterQuantity quantity;
};

/// Returns the first range among the words [first, last) of an expression.
RangeWords findRange(const QuantityNames& names, std::string_view text, const std::vector<FilterToken>& tokens,
                     std::size_t first, std::size_t last);

/// Returns whether a word begins with a number: "+5", ".5", "100GPa".
bool beginsNumber(std::string_view text);

/// The words [first, last) of an expression, which are searched in labels.
struct LabelWords
{
    std::size_t first = 0;
    std::size_t last = 0;
};

/// Reads a filter expression from the left, with a stack of the operators that are not complete.
class FilterParser
{
public:
    /// `names` must outlive the parser.
    FilterParser(std::string_view text, const ReadingContext& context, const QuantityNames& names);
    FilterReading read();

    // After read():
    const std::vector<FilterToken>& tokens() const { return m_tokens; }
    /// Returns the words that are searched in labels, without those in quotes.
    const std::vector<LabelWords>& labelWords() const { return m_labelWords; }

private:
    /// An operator or parenthesis whose right side is not complete.
    struct Pending
    {
        FilterToken::Kind kind;
        std::size_t place; ///< of the jump to complete, or of the token
    };
    /// The place of a part of the text.
    struct Part
    {
        std::size_t begin;
        std::size_t end;
    };

    bool readNext();
    bool readKeyword(const FilterToken& next);
    bool readHas();
    bool readWords();
    bool readComparison(std::size_t firstWord, const FilterQuantity& quantity, const FilterToken& sign);
    bool readRangeOrLabel(std::size_t first, std::size_t last);
    bool refuseComparison(std::size_t first, std::size_t last);
    bool refuseValueFirst(std::size_t first, std::size_t last);
    bool refuseSecondComparison(std::size_t first);
    bool refuseValue(const FilterQuantity& quantity, Part value, Failure failure);
    bool finish();

    bool takeValue(const std::string& after, Part& value);
    bool addNumberTest(const FilterQuantity& quantity, Comparison comparison, Part value);
    bool addRangeTest(const FilterQuantity& quantity, Comparison comparison, Part value);
    bool addWordTest(const FilterQuantity& quantity, Comparison comparison, Part value);
    void addHasTest(const FilterQuantity& quantity);
    void addLabelTests(std::size_t first, std::size_t last);
    void addTest(Filter::Test test);

    bool beginOperand(Part part);
    bool push(FilterToken::Kind kind, Part part);
    bool combine(FilterToken::Kind kind, Part part);
    void completeBinary();
    void completeNots();
    bool close(const FilterToken& token);

    Result<std::vector<double>> readNumbers(const FilterQuantity& quantity, const std::string& list) const;
    Result<double> readOne(const FilterQuantity& quantity, std::string_view text) const;

    bool fail(Part part, Failure failure);
    const FilterToken& token() const { return m_tokens[m_next]; }
    std::string_view textOf(Part part) const { return m_text.substr(part.begin, part.end - part.begin); }
    static Part partOf(const FilterToken& token) { return {token.begin, token.end}; }

    std::string_view m_text;
    ReadingContext m_context;
    const QuantityNames& m_names;
    std::vector<FilterToken> m_tokens;
    std::size_t m_next = 0;             ///< token
    std::size_t m_beginOfCondition = 0; ///< of the name of its quantity, in the text
    bool m_isComplete = false;          ///< whether an operand comes before
    std::vector<Pending> m_pending;
    std::size_t m_depth = 0; ///< of parentheses and `not`
    Filter m_filter;
    FilterReading m_reading;
    std::vector<LabelWords> m_labelWords;
};

} // namespace vxUnits
