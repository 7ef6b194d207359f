#pragma once

#include <QString>

#include <curl/curl.h>

namespace velmora {

/// The functions of libcurl that the client uses.
struct CurlLibrary {
    QString error; ///< why the library cannot be used, in words for the owner; empty if it can

    decltype(&curl_global_init) globalInit;
    decltype(&curl_easy_init) easyInit;
    decltype(&curl_easy_cleanup) easyCleanup;
    CURLcode (*easySetopt)(CURL*, CURLoption, ...);
    CURLcode (*easyGetinfo)(CURL*, CURLINFO, ...);
    decltype(&curl_easy_header) easyHeader;
    decltype(&curl_easy_strerror) easyStrerror;
    decltype(&curl_slist_append) slistAppend;
    decltype(&curl_slist_free_all) slistFreeAll;
    decltype(&curl_multi_init) multiInit;
    decltype(&curl_multi_cleanup) multiCleanup;
    CURLMcode (*multiSetopt)(CURLM*, CURLMoption, ...);
    decltype(&curl_multi_add_handle) multiAddHandle;
    decltype(&curl_multi_remove_handle) multiRemoveHandle;
    decltype(&curl_multi_socket_action) multiSocketAction;
    decltype(&curl_multi_info_read) multiInfoRead;
};

/// Loads libcurl with the first call, because it brings many libraries that neither demo mode nor the first
/// frame needs.
const CurlLibrary& curl();

} // namespace velmora
