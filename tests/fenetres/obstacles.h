#pragma once
#include "platform/windows.h"

#include <string>

// What other programs and a busy machine put in a command's way.

// Another program holds the file for itself; or the directory, which it lets others open but neither rename nor remove.
class Verrou {
public:
    explicit Verrou(const std::wstring & chemin, DWORD partage = 0)
        : poignee_(CreateFileW(chemin.c_str(), GENERIC_READ, partage, nullptr, OPEN_EXISTING,
                               FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
    ~Verrou() { CloseHandle(poignee_); }
    Verrou(const Verrou &)             = delete;
    Verrou & operator=(const Verrou &) = delete;

    bool Tient() const { return poignee_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE poignee_;
};

inline constexpr DWORD repertoire_ouvert = FILE_SHARE_READ | FILE_SHARE_WRITE;

// Every thread of the program stands still while it lives.
class Suspension {
public:
    explicit Suspension(HANDLE processus) : processus_(processus) { Appeler("NtSuspendProcess"); }
    ~Suspension() { Appeler("NtResumeProcess"); }
    Suspension(const Suspension &)             = delete;
    Suspension & operator=(const Suspension &) = delete;

private:
    void Appeler(const char * service) const {
        using Service = LONG(NTAPI *)(HANDLE);
        const auto adresse =
            reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), service));
        reinterpret_cast<Service>(adresse)(processus_);
    }

    HANDLE processus_;
};
