#include "link/curl_library.h"

#include <QLibrary>

namespace velmora {

namespace {

constexpr int interfaceVersion = 4; // of the headers that this file includes

/// Resolves each member by its type.
class Resolver {
public:
    Resolver() : library_(QStringLiteral("curl"), interfaceVersion) {}

    template <class Function>
    void operator()(Function& function, const char* name) {
        function = reinterpret_cast<Function>(library_.resolve(name));
        if (function == nullptr)
            error_ = library_.errorString();
    }
    const QString& error() const { return error_; }

private:
    QLibrary library_; // stays loaded
    QString error_;
};

CurlLibrary load() {
    CurlLibrary curl{};
    Resolver resolve;
    resolve(curl.globalInit, "curl_global_init");
    resolve(curl.easyInit, "curl_easy_init");
    resolve(curl.easyCleanup, "curl_easy_cleanup");
    resolve(curl.easySetopt, "curl_easy_setopt");
    resolve(curl.easyGetinfo, "curl_easy_getinfo");
    resolve(curl.easyHeader, "curl_easy_header");
    resolve(curl.easyStrerror, "curl_easy_strerror");
    resolve(curl.slistAppend, "curl_slist_append");
    resolve(curl.slistFreeAll, "curl_slist_free_all");
    resolve(curl.multiInit, "curl_multi_init");
    resolve(curl.multiCleanup, "curl_multi_cleanup");
    resolve(curl.multiSetopt, "curl_multi_setopt");
    resolve(curl.multiAddHandle, "curl_multi_add_handle");
    resolve(curl.multiRemoveHandle, "curl_multi_remove_handle");
    resolve(curl.multiSocketAction, "curl_multi_socket_action");
    resolve(curl.multiInfoRead, "curl_multi_info_read");
    curl.error = resolve.error();
    return curl;
}

} // namespace

const CurlLibrary& curl() {
    static const CurlLibrary library = load();
    return library;
}

} // namespace velmora
