#include "vxConstitutive/Texts.h"

#include "vxConstitutive/Curve.h"
#include "vxConstitutive/Model.h"
#include "vxConstitutive/data/TestReading.h"
#include "vxConstitutive/fit/HyperelasticFit.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vxConstitutive {

namespace {

/// Names that no table of records has: of constants, of fits, and the patterns of columnName().
constexpr std::array otherWords{
    "factor of the series",
    "limiting stretch",
    "first constant",
    "second constant",
    "mixed constant",
    "compressibility",
    "initial shear modulus",
    "initial Young's modulus",
    "initial Poisson's ratio",
    "initial bulk modulus",
    "creep constant",
    "stress exponent",
    "time exponent",
    "initial yield stress",
    "yield stress",
    "hardening modulus",
    "tangent modulus",
    "engineering strain at necking",
    "tensile strength",
    "friction angle",
    "relaxing part",
    "relaxation time",
    "instantaneous shear modulus",
    "long-term shear modulus",
    "Young's modulus",
    "Poisson's ratio",
    "shear modulus",
    "bulk modulus",
    "multilinear hardening",
    "bilinear hardening",
    "%1 / cohesion",
    "%1 / shear modulus",
    "%1 x shear modulus",
    "%1 at %2 Pa",
    "%1 at %2 s",
};

/// Collects words without repetitions.
class WordList
{
public:
    void add(const char* word)
    {
        if (std::find(m_words.begin(), m_words.end(), word) == m_words.end())
            m_words.emplace_back(word);
    }

    template <class Records>
    void addNames(const Records& records)
    {
        for (const auto& record : records)
            add(record.name);
    }

    std::vector<std::string> take() { return std::move(m_words); }

private:
    std::vector<std::string> m_words;
};

std::vector<std::string> collectWords()
{
    WordList words;
    words.addNames(modelRecords());
    for (const HyperelasticForm form : hyperelasticForms())
        words.add(hyperelasticFormRecord(form).name);
    words.addNames(modeRecords());
    words.addNames(quantityRecords());
    words.addNames(measureRecords());
    for (const char* const word : otherWords)
        words.add(word);
    return words.take();
}

bool isWord(std::string_view text)
{
    const std::vector<std::string>& words = wordTexts();
    return std::find(words.begin(), words.end(), text) != words.end();
}

} // namespace

const std::vector<std::string>& wordTexts()
{
    static const std::vector<std::string> words = collectWords();
    return words;
}

std::string translatedWord(std::string_view english, const vxUnits::Translator& translator)
{
    if (!translator)
        return std::string(english);
    const auto translate = [&](std::string_view word) {
        return translator("vxConstitutive::Word", std::string(word).c_str());
    };
    if (isWord(english))
        return translate(english);
    constexpr std::string_view comma = ", ";
    std::string translated;
    for (std::size_t end = english.find(comma); end != std::string_view::npos; end = english.find(comma)) {
        translated += translate(english.substr(0, end));
        translated += comma;
        english.remove_prefix(end + comma.size());
    }
    return translated + translate(english);
}

} // namespace vxConstitutive
