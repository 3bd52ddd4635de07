#pragma once

#include "app/addons/GApplicationAddons.h"
#include "base/DI.h"
#include "base/GSettings.h"
#include "online/services/GUrlProvider.h"
#include "support/HttpServer.h"

#include <memory>
#include <QTemporaryDir>

/**
 * The maker's web server, played by the test: every web address that the
 * program forms leads there. The settings are new while it lives.
 */
class MakersServer
{
public:
    explicit MakersServer(const HttpServer::Response &response)
    {
        GSettings::setIniFile(m_profile.filePath("settings.ini"));
        theDependencyRegistry()
            ->setConstructorWith1ParameterForRole<GUrlProvider, Provider, QString>(
                GApplicationAddons::di_UrlProvider);
        m_addons = std::make_unique<GApplicationAddons>(true, "Hoopline Organizer", "hl");
        answer(response);
    }

    /** From now on, by a server that nobody has asked anything yet. */
    void serve(HttpServer::Handler handler, bool tls = false)
    {
        m_server = std::make_unique<HttpServer>(std::move(handler), tls);
        Provider::base = m_server->url(QString()).toString();
    }
    void answer(const HttpServer::Response &response, bool tls = false)
    {
        serve([response](const HttpServer::Request &) { return response; }, tls);
    }

    const HttpServer &server() const { return *m_server; }
    const QTemporaryDir &profile() const { return m_profile; }

private:
    class Provider : public GUrlProvider
    {
    public:
        using GUrlProvider::GUrlProvider;
        QString baseUrlString() const override { return base; }
        inline static QString base;
    };

    QTemporaryDir m_profile;
    std::unique_ptr<GApplicationAddons> m_addons;
    std::unique_ptr<HttpServer> m_server;
};
