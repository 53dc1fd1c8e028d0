/// @file
/// The obvious structs: vectors of pointers, standard texts, a virtual destructor and visitors.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Bench::Plain {

template <class T>
using Owned = std::vector<std::unique_ptr<T>>;

template <class T>
Owned<T> CopyAll(const Owned<T>& elements) {
    Owned<T> copies;
    for (const auto& element : elements)
        copies.push_back(std::make_unique<T>(*element));
    return copies;
}

template <class T>
std::size_t CountImported(const Owned<T>& elements) {
    return static_cast<std::size_t>(
        std::count_if(elements.begin(), elements.end(), [](const auto& element) { return element->isImported; }));
}

/// What a traverser does with an object that its visit function is given.
template <class Traverser, class Kind>
void CallHooks(Traverser& traverser, Kind& object) {
    traverser.PreProcess(object);
    traverser.Descend(object);
    traverser.PostProcess(object);
}

struct Attribute;

/// What all objects refer to.
struct Document {
    std::wstring language;
};

struct Text {
    std::wstring text;
    std::wstring textId;
    bool hasTextId = false;
};

struct Qualified {
    explicit Qualified(Document& owner);
    Qualified(const Qualified& other);
    virtual ~Qualified();

    Document& document;
    std::wstring qualifier;
    Text name;
    Text description;
    bool isImported = true;
    std::wstring sourceInfo;
    Owned<Attribute> attributes;
    std::wstring objectIdentifier;
    unsigned int uniquenessId = 0;
};

struct Attribute : Qualified {
    using Qualified::Qualified;

    std::wstring value;
};

struct Value {
    virtual ~Value() = default;

    std::vector<std::wstring> elements;
    std::wstring text;
    unsigned int quantity = 0;
    bool isPhysical = false;
};

struct Range {
    virtual ~Range() = default;

    Value start;
    Value end;
    bool hasStart = false;
    bool hasEnd = false;
};

} // namespace Bench::Plain
