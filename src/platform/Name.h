#pragma once

#include <compare>
#include <string_view>

namespace qbsp::platform {

/// A name of one kind, told apart from names of other kinds by its type. It refers to text that outlives it:
/// names are constants.
template <class Kind>
struct Name {
    std::string_view text;

    friend constexpr auto operator<=>(const Name&, const Name&) = default;
};

/// An application's bundle identifier, as the system knows running applications and login items by it.
using BundleIdentifier = Name<struct BundleIdentifierKind>;
/// A preferences domain: an application, as the preferences functions name it.
using ApplicationID = Name<struct ApplicationIDKind>;
/// A suite of preferences that can be added to an application's.
using SuiteID = Name<struct SuiteIDKind>;
/// A key in a preferences domain.
using PreferenceKey = Name<struct PreferenceKeyKind>;
/// A key in the host's defaults.
using DefaultsKey = Name<struct DefaultsKeyKind>;
/// A notification's name, distributed or of the workspace.
using NotificationName = Name<struct NotificationNameKind>;
/// The name of a class in the process.
using ClassName = Name<struct ClassNameKind>;
/// The name of a message.
using Selector = Name<struct SelectorKind>;
/// An application group, whose members share a container.
using ApplicationGroup = Name<struct ApplicationGroupKind>;
/// A text's wording in English, which is its key in the string tables.
using TextKey = Name<struct TextKeyKind>;
/// The text that a lookup returns when the table lacks the key; an empty one stands for the key itself.
using FallbackText = Name<struct FallbackTextKind>;
/// A string table of a bundle.
using TextTable = Name<struct TextTableKind>;
/// The identifier of a table column.
using ColumnIdentifier = Name<struct ColumnIdentifierKind>;

} // namespace qbsp::platform
