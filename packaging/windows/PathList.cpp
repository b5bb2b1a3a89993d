#include "packaging/windows/PathList.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace linewright {

namespace {

using Entries = std::vector<std::wstring_view>;

Entries EntriesOf(std::wstring_view list) {
    Entries entries;
    bool isQuoted = false;
    std::size_t start = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] == L'"') isQuoted = !isQuoted;
        if (list[i] != L';' || isQuoted) continue;
        entries.push_back(list.substr(start, i - start));
        start = i + 1;
    }
    if (!list.empty()) entries.push_back(list.substr(start));
    return entries;
}

std::wstring ListOf(const Entries& entries) {
    std::wstring list;
    for (const std::wstring_view entry : entries) {
        list += entry;
        list += L';';
    }
    if (!list.empty()) list.pop_back();
    return list;
}

/** A folder as it may be written: without quotes and without a backslash at the end. */
std::wstring Plain(std::wstring_view entry) {
    std::wstring plain(entry);
    std::erase(plain, L'"');
    while (plain.ends_with(L'\\')) plain.pop_back();
    return plain;
}

bool IsSame(std::wstring_view entry, std::wstring_view folder) {
    const std::wstring left = Plain(entry);
    const std::wstring right = Plain(folder);
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

}  // namespace

std::wstring WithFolder(std::wstring_view list, std::wstring_view folder) {
    Entries entries = EntriesOf(list);
    for (const std::wstring_view entry : entries) {
        if (IsSame(entry, folder)) return std::wstring(list);
    }
    std::wstring written(folder);
    if (folder.find(L';') != std::wstring_view::npos) written = L'"' + written + L'"';
    entries.push_back(written);
    return ListOf(entries);
}

std::wstring WithoutFolder(std::wstring_view list, std::wstring_view folder) {
    Entries entries = EntriesOf(list);
    std::erase_if(entries, [folder](auto entry) { return IsSame(entry, folder); });
    return ListOf(entries);
}

}  // namespace linewright
