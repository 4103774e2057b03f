#pragma once

/// What the toolkit's functions throw. Client and toolkit live in one library, so that a client may
/// catch them; none leaves a window procedure or the library itself.

#include <stdexcept>

/// A function of a suite that the toolkit does not offer.
class NRDMNotImpl : public std::runtime_error {
public:
    NRDMNotImpl() : std::runtime_error("NRDM: Function not implemented") {}
};

class NRDMParameterException : public std::runtime_error {
public:
    NRDMParameterException() : std::runtime_error("Bad parameter in NRDM call") {}
};

/// Why an exception of that type is thrown when a resource is missing or damaged.
inline constexpr char kResourceReadFailed[] = "Resource read failed";

/// A resource that cannot be read, or a system that has no more to give.
class NRDMResourceException : public std::runtime_error {
public:
    explicit NRDMResourceException(const char* what = "Insuffucient resources")
        : std::runtime_error(what) {}
};
