#pragma once

#include "engine/text/enum_table.h"
#include "engine/text/tr_noop.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// The case styles that every part with a case option shares.
enum class CaseType : std::uint32_t {
    Unchanged,
    UpperCase,
    LowerCase,
    TitleCase,
    SentenceCase,
    CamelCase,
    PascalCase,
    SnakeCase,
    SnakeCaseUpper,
    KebabCase,
    KebabCaseUpper
};

inline constexpr std::array<EnumRow<CaseType>, 11> case_types{{
    {CaseType::Unchanged, "Unchanged", TR_NOOP("MVCaseTypeUtils", "Unchanged")},
    {CaseType::UpperCase, "UpperCase", TR_NOOP("MVCaseTypeUtils", "UPPERCASE")},
    {CaseType::LowerCase, "LowerCase", TR_NOOP("MVCaseTypeUtils", "lowercase")},
    {CaseType::TitleCase, "TitleCase", TR_NOOP("MVCaseTypeUtils", "Title Case")},
    {CaseType::SentenceCase, "SentenceCase", TR_NOOP("MVCaseTypeUtils", "Sentence case")},
    {CaseType::CamelCase, "CamelCase", TR_NOOP("MVCaseTypeUtils", "camelCase")},
    {CaseType::PascalCase, "PascalCase", TR_NOOP("MVCaseTypeUtils", "PascalCase")},
    {CaseType::SnakeCase, "SnakeCase", TR_NOOP("MVCaseTypeUtils", "snake_case")},
    {CaseType::SnakeCaseUpper, "SnakeCaseUpper", TR_NOOP("MVCaseTypeUtils", "SNAKE_CASE_UPPER")},
    {CaseType::KebabCase, "KebabCase", TR_NOOP("MVCaseTypeUtils", "kebab-case")},
    {CaseType::KebabCaseUpper, "KebabCaseUpper", TR_NOOP("MVCaseTypeUtils", "KEBAB-CASE-UPPER")},
}};
static_assert(is_complete(case_types));

/// Changes texts from one case style to another, unit by unit; only ASCII letters change.
class MVCaseTypeUtils
{
public:
    static std::u16string convert(CaseType type, std::u16string_view text);

    /// Does nothing for `Unchanged`.
    static void convert_in_place(CaseType type, std::u16string& text);

    /// "Unchanged" for a value outside the table.
    static std::string_view to_string(CaseType type);

    /// `Unchanged` for an unknown string.
    static CaseType from_string(std::string_view string);
};
