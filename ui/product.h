#pragma once

#include <product_version.h>

/// What the product is called and where it lives.
namespace product {

inline constexpr char name[] = "Vellumark";
inline constexpr const char* version = product_version;
/// Settings lie under these two names, so they never change.
inline constexpr char organisation[] = "Mirvanta Software";
inline constexpr char application[] = "Vellumark Configure";
inline constexpr char organisation_domain[] = "mirvanta.example";
/// Without a scheme; pages are reached by "https://".
inline constexpr char web_site[] = "vellumark.example";

}
