#include "document/Kinds.h"

#include <numeric>

namespace Fuzz {

using namespace ImportDame;

VRecordItem& RecordItemKind::Add(VImportDoc&, Collection& collection, Bytes& bytes) {
    if (bytes.Bool())
        return collection.AddNewRecordItem();
    auto& item = *std::make_unique<VRecordItem>().release();
    collection.AppendRecordItem(item);
    return item;
}

std::wstring RecordItemKind::NameOf(VRecordItem& element) {
    return element.Text().GetText();
}

std::wstring RecordItemKind::Rename(VRecordItem& element, const std::wstring& name) {
    element.Text().SetText(name.c_str());
    return name;
}

void RecordItemKind::ExpectSameSummary(Collection& collection,
                                       const std::vector<CollectionShadow<RecordItemKind>::Entry>& entries) {
    for (unsigned int index = 0; index < entries.size(); ++index)
        Expect(&*collection.FindByIndex(index) == entries[index].element, "another item at the index");
    Expect(collection.FindByIndex(static_cast<unsigned int>(entries.size()) + 1) == collection.End(), "no such item");
}

VTroubleCode& TroubleCodeKind::Add(VImportDoc& document, Collection& collection, Bytes& bytes) {
    if (bytes.Bool())
        return collection.AppendNew();
    VTroubleCode& code = document.MakeTroubleCode();
    collection.Append(code);
    return code;
}

std::wstring TroubleCodeKind::NameOf(VTroubleCode& element) {
    return std::to_wstring(element.GetCode());
}

std::wstring TroubleCodeKind::Rename(VTroubleCode& element, const std::wstring& name) {
    const unsigned int code = std::accumulate(name.begin(), name.end(), 0U);
    element.SetCode(code);
    return std::to_wstring(code);
}

VTroubleCodeCollection::iterator TroubleCodeKind::FindName(Collection& collection, const std::wstring& name) {
    return collection.Find(static_cast<unsigned int>(std::stoul(name)));
}

Shadows TroubleCodeKind::ChildrenOf(VImportDoc& document, VTroubleCode& element) {
    Shadows children;
    children.push_back(MakeShadow<RecordItemKind>(document, element.RecordItemCollection()));
    children.push_back(MakeShadow<AttributeKind>(document, element.Attributes()));
    return children;
}

void TroubleCodeKind::SetAllImported(Collection& collection, bool isImported) {
    collection.SetIsImportedTroubleCodes(isImported);
}

namespace {

CollectionShadow<RecordItemKind>& RecordOf(CollectionShadow<TroubleCodeKind>::Entry& entry) {
    return static_cast<CollectionShadow<RecordItemKind>&>(*entry.children[0]);
}

std::vector<std::wstring> NamesIn(CollectionShadow<RecordItemKind>& record) {
    std::vector<std::wstring> names;
    for (const auto& entry : record.Entries())
        names.push_back(entry.name);
    return names;
}

void SetItem(VTroubleCode& code, std::vector<std::wstring>& names, Bytes& bytes) {
    const unsigned int index = bytes.Byte() % 20;
    const std::wstring text = AnyName(bytes);
    names.resize(std::max<std::size_t>(names.size(), index + 1));
    names[index] = text;
    if (bytes.Bool())
        code.InsertItem(index, text.c_str());
    else
        code.InsertEnumRecordItem(index, text.c_str(), 7);
}

void OverwriteItem(VTroubleCode& code, std::vector<std::wstring>& names, Bytes& bytes) {
    const unsigned int index = bytes.Byte() % 20;
    const std::wstring text = AnyName(bytes);
    if (index >= names.size()) {
        ExpectFailedCheck(102024, [&] { code.OverwriteItem(index, text.c_str()); });
        return ExpectFailedCheck(102020, [&] { code.GetItem(index); });
    }
    code.OverwriteItem(index, text.c_str());
    Expect(code.GetItem(index) == text, "another item");
    names[index] = text;
}

} // namespace

void TroubleCodeKind::Operate(CollectionShadow<TroubleCodeKind>::Entry& entry, Bytes& bytes) {
    VTroubleCode& code = *entry.element;
    std::vector<std::wstring> names = NamesIn(RecordOf(entry));
    switch (bytes.Below(4)) {
    case 0:
        names.push_back(AnyName(bytes));
        code.AppendItem(names.back().c_str());
        break;
    case 1:
        SetItem(code, names, bytes);
        break;
    case 2:
        OverwriteItem(code, names, bytes);
        break;
    default:
        names.clear();
        code.ClearRecord();
    }
    RecordOf(entry).NoteNames(names);
}

VTroubleCodeCollection& TroubleCodeCollectionKind::Add(VImportDoc& document, Collection& collection, Bytes& bytes) {
    if (bytes.Bool())
        return collection.AppendNew();
    VTroubleCodeCollection& codes = document.MakeTroubleCodeCollection();
    collection.Append(codes);
    return codes;
}

std::wstring TroubleCodeCollectionKind::NameOf(VTroubleCodeCollection& element) {
    return element.GetSourceName();
}

std::wstring TroubleCodeCollectionKind::Rename(VTroubleCodeCollection& element, const std::wstring& name) {
    element.SetSourceName(name.c_str());
    return name;
}

VTroubleCodeCollectionCollection::iterator TroubleCodeCollectionKind::FindName(Collection& collection,
                                                                               const std::wstring& name) {
    return collection.Find(name.c_str());
}

Shadows TroubleCodeCollectionKind::ChildrenOf(VImportDoc& document, VTroubleCodeCollection& element) {
    Shadows children;
    children.push_back(MakeShadow<TroubleCodeKind>(document, element));
    return children;
}

void TroubleCodeCollectionKind::Operate(CollectionShadow<TroubleCodeCollectionKind>::Entry& entry, Bytes& bytes) {
    VTroubleCodeCollection& codes = *entry.element;
    if (bytes.Bool()) {
        VItemMapping item;
        codes.RecordTemplateMapping().Append(item);
        return;
    }
    codes.CompleteRecords();
    const auto length = static_cast<std::size_t>(codes.RecordTemplateMapping().GetNumberOfTemplateItem());
    for (auto& code : static_cast<CollectionShadow<TroubleCodeKind>&>(*entry.children[0]).Entries()) {
        std::vector<std::wstring> names = NamesIn(RecordOf(code));
        names.resize(std::max(names.size(), length));
        RecordOf(code).NoteNames(names);
    }
}

void TroubleCodeCollectionKind::ExpectSameSummary(
    Collection& collection, const std::vector<CollectionShadow<TroubleCodeCollectionKind>::Entry>& entries) {
    std::size_t imported = 0;
    for (unsigned int index = 0; index < entries.size(); ++index) {
        VTroubleCodeCollection& codes = *entries[index].element;
        Expect(&collection[index] == &codes && collection.GetIndex(codes) == index, "another index");
        imported += entries[index].children[0]->ImportedCount();
    }
    Expect(collection.ImportedTroubleCodesCount() == imported, "another number of imported codes");
    auto position = collection.FirstImported();
    for (const auto& entry : entries)
        if (entry.children[0]->ImportedCount() != 0) {
            Expect(position != collection.End() && &*position == entry.element, "another imported collection");
            position = collection.NextImported(*entry.element);
        }
    Expect(position == collection.End(), "one imported collection too much");
    ExpectFailedCheck(102032, [&] { collection[static_cast<unsigned int>(entries.size())]; });
}

} // namespace Fuzz
