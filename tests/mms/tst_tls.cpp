// SPDX-License-Identifier: Apache-2.0
#include "mms/associationtest.h"
#include "osi/testcertificates.h"

#include <asio/ssl.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <condition_variable>
#include <cstdio>
#include <mutex>

using namespace wiretest;

namespace {

using Identity = TestCertificates::Identity;

constexpr Validity inThePast{-5h, -1h};
constexpr Validity inTheFuture{1h, 5h};

/// Hears why a connection did not become an association.
class TlsDevice : public TestDevice
{
public:
    void opened(const std::shared_ptr<Association> &association) override
    {
        TestDevice::opened(association);
        peer = association->tlsPeer();
    }

    void refused(const mms::Text &reason) override
    {
        const std::lock_guard lock(m_mutex);
        m_refusals.push_back(reason.english());
        m_changed.notify_all();
    }

    /// The next refusal.
    std::string refusal()
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return !m_refusals.empty(); });
        std::string reason = m_refusals.front();
        m_refusals.erase(m_refusals.begin());
        return reason;
    }

    std::optional<osi::TlsPeer> peer;

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::string> m_refusals;
};

/// An end of a connection that checks nothing, neither what it shows nor what it is shown.
class CarelessTlsPeer
{
public:
    explicit CarelessTlsPeer(const Identity *identity)
    {
        if (identity) {
            m_tls.use_certificate_file(identity->certificateFile, asio::ssl::context::pem);
            m_tls.use_private_key_file(identity->keyFile, asio::ssl::context::pem);
        }
        m_stream.emplace(m_context, m_tls);
    }

    std::uint16_t port() const { return m_acceptor.local_endpoint().port(); }
    /// Whether a handshake with the next client succeeds.
    bool accept()
    {
        m_acceptor.accept(m_stream->next_layer());
        return handshake(asio::ssl::stream_base::server);
    }
    bool connect(std::uint16_t port)
    {
        m_stream->next_layer().connect({asio::ip::address_v4::loopback(), port});
        return handshake(asio::ssl::stream_base::client);
    }

private:
    /// In TLS 1.3 only what comes after the handshake shows that a client was refused.
    bool handshake(asio::ssl::stream_base::handshake_type type)
    {
        asio::error_code error;
        m_stream->handshake(type, error);
        std::array<char, 1> octet{};
        if (!error)
            m_stream->read_some(asio::buffer(octet), error);
        m_stream->next_layer().close();
        return !error;
    }

    asio::io_context m_context;
    asio::ssl::context m_tls{asio::ssl::context::tls};
    asio::ip::tcp::acceptor m_acceptor{m_context, {asio::ip::address_v4::loopback(), 0}};
    std::optional<asio::ssl::stream<asio::ip::tcp::socket>> m_stream;
};

class Tls : public AssociationTest
{
protected:
    Tls() { m_device = m_tlsDevice; }

    static void SetUpTestSuite()
    {
        s_certificates = std::make_unique<TestCertificates>();
        s_authority = s_certificates->authority("Authority");
        s_device = s_certificates->issue(s_authority, "Device");
        s_operator = s_certificates->issue(s_authority, "Operator");
    }
    static void TearDownTestSuite() { s_certificates.reset(); }

    static osi::TlsOptions deviceOptions()
    {
        return TestCertificates::options(s_device, s_authority);
    }
    static osi::TlsOptions operatorOptions()
    {
        return TestCertificates::options(s_operator, s_authority);
    }

    std::uint16_t startSecure(const osi::TlsOptions &tls)
    {
        ServerOptions options;
        options.association.link.tls = tls;
        return startServer(options);
    }

    Result<InitiateParameters> connectSecure(std::uint16_t port, const osi::TlsOptions &tls)
    {
        AssociationOptions options = quickOptions();
        options.link.tls = tls;
        return connect(port, options);
    }

    /// Why no association comes about, as the client and the server say it.
    std::pair<std::string, std::string> refusals(const osi::TlsOptions &server,
                                                 const osi::TlsOptions &client)
    {
        const std::uint16_t port = startSecure(server);
        const auto opened = connectSecure(port, client);
        EXPECT_FALSE(opened.ok());
        std::string theirs = m_tlsDevice->refusal();
        EXPECT_EQ(m_tlsDevice->openings, 0);
        m_server->stop();
        return {opened.ok() ? std::string() : opened.error().message.english(), std::move(theirs)};
    }

    void expectMutualProof(osi::TlsVersion version, const std::string &name)
    {
        const auto deviceMark = osi::certificateFingerprint(s_device.certificateFile);
        const auto operatorMark = osi::certificateFingerprint(s_operator.certificateFile);
        ASSERT_TRUE(deviceMark.ok() && operatorMark.ok());
        osi::TlsOptions tls = operatorOptions();
        tls.minimumVersion = tls.maximumVersion = version;
        const auto opened = connectSecure(startSecure(deviceOptions()), tls);
        ASSERT_TRUE(opened.ok()) << opened.error().message;
        Awaited<std::optional<osi::TlsPeer>> seen;
        asio::post(m_client->strand(),
                   [client = m_client, done = seen.setter()] { done(client->tlsPeer()); });
        const auto peer = seen.get();
        ASSERT_TRUE(peer.has_value());
        EXPECT_EQ(peer->subject, "CN=Device");
        EXPECT_EQ(peer->fingerprint, *deviceMark);
        EXPECT_EQ(peer->version, name);
        EXPECT_NE(peer->cipherSuite.find("GCM"), std::string::npos) << peer->cipherSuite;
        EXPECT_NE(answerOf<IdentifyResponse>(call(IdentifyRequest())), nullptr);
        Awaited<Result<void>> concluded;
        m_client->conclude(concluded.setter());
        EXPECT_TRUE(concluded.get().ok());
        EXPECT_EQ(m_clientEnd.get(), "The association was released.");
        EXPECT_EQ(m_device->end.get(), "The association was released.");
        ASSERT_TRUE(m_tlsDevice->peer.has_value());
        EXPECT_EQ(m_tlsDevice->peer->subject, "CN=Operator");
        EXPECT_EQ(m_tlsDevice->peer->fingerprint, *operatorMark);
    }

    void expectInvalid(const osi::TlsOptions &options, const std::string &part)
    {
        const auto valid = osi::validate(options);
        ASSERT_FALSE(valid.ok()) << part;
        EXPECT_NE(valid.error().message.english().find(part), std::string::npos)
            << valid.error().message;
        EXPECT_EQ(valid.error().message.english().back(), '.');
    }

    static std::unique_ptr<TestCertificates> s_certificates;
    static Identity s_authority;
    static Identity s_device;
    static Identity s_operator;
    std::shared_ptr<TlsDevice> m_tlsDevice = std::make_shared<TlsDevice>();
};

std::unique_ptr<TestCertificates> Tls::s_certificates;
Identity Tls::s_authority;
Identity Tls::s_device;
Identity Tls::s_operator;

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(Tls, bothEndsProveWhoTheyAreWithVersion12)
{
    expectMutualProof(osi::TlsVersion::Tls12, "TLSv1.2");
}

TEST_F(Tls, bothEndsProveWhoTheyAreWithVersion13)
{
    expectMutualProof(osi::TlsVersion::Tls13, "TLSv1.3");
}

TEST_F(Tls, longAnswersAndManyCallsPassThroughTls)
{
    ServerOptions server;
    server.association.maxPduSize = 200000;
    server.association.link.tls = deviceOptions();
    AssociationOptions options = quickOptions();
    options.maxPduSize = 200000;
    options.link.tls = operatorOptions();
    ASSERT_TRUE(connect(startServer(server), options).ok());
    constexpr int calls = 50;
    std::atomic<int> answers{0};
    Awaited<int> all;
    for (int i = 0; i < calls; ++i) {
        m_client->call(GetNameListRequest(), 30s,
                       [&answers, done = all.setter()](const CallOutcome &outcome) {
                           const auto *names = answerOf<GetNameListResponse>(outcome);
                           EXPECT_TRUE(names && names->names.size() == 9000);
                           if (++answers == calls)
                               done(calls);
                       });
    }
    EXPECT_EQ(all.get(), calls);
}

TEST_F(Tls, anIntermediateAuthorityIsFollowedToTheTrustedOne)
{
    const Identity intermediate = s_certificates->authority("Region", &s_authority);
    const Identity device = s_certificates->issue(intermediate, "Remote");
    const auto opened = connectSecure(startSecure(TestCertificates::options(device, s_authority)),
                                      operatorOptions());
    EXPECT_TRUE(opened.ok()) << opened.error().message;
}

TEST_F(Tls, anUnknownIssuerIsRefusedAndNamed)
{
    const Identity stranger = s_certificates->authority("Stranger");
    osi::TlsOptions server =
        TestCertificates::options(s_certificates->issue(stranger, "Impostor"), s_authority);
    const auto [client, theirs] = refusals(server, operatorOptions());
    EXPECT_TRUE(contains(client, "\"CN=Impostor\" was issued by \"CN=Stranger\", which is not "
                                 "trusted here"))
        << client;
    EXPECT_TRUE(contains(theirs, "does not trust its issuer")) << theirs;
}

TEST_F(Tls, aClientOfAnUnknownIssuerIsRefusedAndToldSoInBothVersions)
{
    const Identity stranger = s_certificates->authority("Stranger");
    osi::TlsOptions tls =
        TestCertificates::options(s_certificates->issue(stranger, "Intruder"), s_authority);
    for (const osi::TlsVersion version : {osi::TlsVersion::Tls12, osi::TlsVersion::Tls13}) {
        tls.minimumVersion = tls.maximumVersion = version;
        const auto [client, theirs] = refusals(deviceOptions(), tls);
        EXPECT_TRUE(contains(client, "does not trust its issuer") ||
                    contains(client, "has none that it trusts"))
            << client;
        EXPECT_TRUE(contains(theirs, "Intruder") || contains(theirs, "has shown no certificate"))
            << theirs;
    }
}

TEST_F(Tls, aRevokedCertificateIsRefused)
{
    osi::TlsOptions tls = operatorOptions();
    tls.revocationFiles = {s_certificates->revocationList(s_authority, {s_device})};
    const auto [client, theirs] = refusals(deviceOptions(), tls);
    EXPECT_EQ(client, "The peer's certificate \"CN=Device\" has been revoked.");
    EXPECT_TRUE(contains(theirs, "because it has been revoked")) << theirs;
}

TEST_F(Tls, aCertificateThatIsNotInTheRevocationListIsAccepted)
{
    osi::TlsOptions tls = operatorOptions();
    tls.revocationFiles = {s_certificates->revocationList(s_authority, {s_operator})};
    const auto opened = connectSecure(startSecure(deviceOptions()), tls);
    EXPECT_TRUE(opened.ok()) << opened.error().message;
}

TEST_F(Tls, aRevocationListThatIsMissingOrOutOfDateIsSaid)
{
    const Identity other = s_certificates->authority("Other");
    osi::TlsOptions tls = operatorOptions();
    tls.revocationFiles = {s_certificates->revocationList(other, {})};
    tls.authorityFiles.push_back(other.certificateFile);
    EXPECT_TRUE(contains(refusals(deviceOptions(), tls).first,
                         "there is no revocation list of its issuer \"CN=Authority\""));
    tls.revocationFiles = {s_certificates->revocationList(s_authority, {}, inThePast)};
    EXPECT_TRUE(contains(refusals(deviceOptions(), tls).first,
                         "the revocation list of its issuer \"CN=Authority\" is out of date"));
}

TEST_F(Tls, aRevocationListThatIsLoadedAgainCountsFromThenOn)
{
    osi::TlsOptions server = deviceOptions();
    const std::string list = s_certificates->revocationList(s_authority, {});
    server.revocationFiles = {list};
    const std::uint16_t port = startSecure(server);
    ASSERT_TRUE(connectSecure(port, operatorOptions()).ok());
    std::rename(s_certificates->revocationList(s_authority, {s_operator}).c_str(), list.c_str());
    const auto reloaded = m_server->reloadTls();
    ASSERT_TRUE(reloaded.ok()) << reloaded.error().message;
    const auto opened = connectSecure(port, operatorOptions());
    ASSERT_FALSE(opened.ok());
    EXPECT_TRUE(contains(opened.error().message.english(), "because it has been revoked"))
        << opened.error().message;
    std::rename(s_certificates->file("broken.pem", "nothing").c_str(), list.c_str());
    EXPECT_FALSE(m_server->reloadTls().ok());
}

TEST_F(Tls, anExpiredCertificateIsRefusedAndNamed)
{
    for (const auto &[validity, text] :
         {std::pair{inThePast, "The peer's certificate \"CN=Old\" expired on 20"},
          std::pair{inTheFuture, "The peer's certificate \"CN=Old\" is valid only from 20"}}) {
        const Identity old = s_certificates->issue(s_authority, "Old", validity);
        CarelessTlsPeer peer(&old);
        AssociationOptions options = quickOptions();
        options.link.tls = operatorOptions();
        m_client = Association::create(m_loop.executor(), options, {});
        Awaited<Result<InitiateParameters>> opened;
        m_client->connect("127.0.0.1", peer.port(), opened.setter());
        EXPECT_FALSE(peer.accept());
        const auto result = opened.get();
        ASSERT_FALSE(result.ok());
        EXPECT_TRUE(contains(result.error().message.english(), text)) << result.error().message;
    }
}

TEST_F(Tls, aClientWithoutACertificateIsRefused)
{
    CarelessTlsPeer peer(nullptr);
    peer.connect(startSecure(deviceOptions()));
    EXPECT_EQ(m_tlsDevice->refusal(), "The peer has shown no certificate.");
}

TEST_F(Tls, onlyAPinnedPeerIsAccepted)
{
    const auto mark = osi::certificateFingerprint(s_device.certificateFile);
    const auto otherMark = osi::certificateFingerprint(s_operator.certificateFile);
    ASSERT_TRUE(mark.ok() && otherMark.ok());
    osi::TlsOptions tls = operatorOptions();
    tls.pins = {*otherMark};
    const auto [client, theirs] = refusals(deviceOptions(), tls);
    EXPECT_TRUE(contains(client, "\"CN=Device\" is not one of those that are pinned; its "
                                 "fingerprint is " +
                                     *mark))
        << client;
    EXPECT_FALSE(theirs.empty());
    std::string withColons;
    for (std::size_t i = 0; i < mark->size(); i += 2)
        withColons += (i > 0 ? ":" : "") + mark->substr(i, 2);
    std::ranges::transform(withColons, withColons.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    tls.pins.push_back(withColons);
    const auto opened = connectSecure(startSecure(deviceOptions()), tls);
    EXPECT_TRUE(opened.ok()) << opened.error().message;
}

TEST_F(Tls, aPinnedCertificateNeedsNoAuthorityAndAnotherIsRefused)
{
    const Identity alone = s_certificates->authority("Alone");
    const Identity device = s_certificates->issue(alone, "Device");
    osi::TlsOptions tls = operatorOptions();
    tls.authorityFiles.clear();
    tls.pins = {*osi::certificateFingerprint(device.certificateFile)};
    const osi::TlsOptions server = TestCertificates::options(device, s_authority);
    const auto opened = connectSecure(startSecure(server), tls);
    EXPECT_TRUE(opened.ok()) << opened.error().message;
    m_client->abort(mms::verbatim("The test is over."));
    m_server->stop();
    m_tlsDevice->openings = 0;
    EXPECT_TRUE(contains(refusals(deviceOptions(), tls).first, "is not one of those"));
}

TEST_F(Tls, theNameOfTheServerIsCheckedWhereOneIsAskedFor)
{
    const Identity named =
        s_certificates->issue(s_authority, "Named", {}, "DNS:bay1.example,IP:127.0.0.1");
    const osi::TlsOptions server = TestCertificates::options(named, s_authority);
    osi::TlsOptions tls = operatorOptions();
    for (const char *right : {"bay1.example", "127.0.0.1"}) {
        tls.peerName = right;
        const auto opened = connectSecure(startSecure(server), tls);
        EXPECT_TRUE(opened.ok()) << opened.error().message;
        m_client->abort(mms::verbatim("Next."));
        m_server->stop();
    }
    m_tlsDevice->openings = 0;
    for (const char *wrong : {"bay2.example", "127.0.0.2"}) {
        tls.peerName = wrong;
        EXPECT_TRUE(contains(refusals(server, tls).first,
                             "is not made out to the host that was asked for"));
    }
}

TEST_F(Tls, theCertificateOfAnotherHostIsRefusedUnlessToldOtherwise)
{
    const Identity other = s_certificates->issue(s_authority, "Other", {}, "DNS:bay9.example");
    const osi::TlsOptions server = TestCertificates::options(other, s_authority);
    osi::TlsOptions tls = operatorOptions();
    m_tlsDevice->openings = 0;
    EXPECT_TRUE(
        contains(refusals(server, tls).first, "is not made out to the host that was asked for"));
    EXPECT_EQ(m_tlsDevice->openings, 0);
    m_server->stop();
    tls.acceptsOtherNames = true;
    const auto accepted = connectSecure(startSecure(server), tls);
    EXPECT_TRUE(accepted.ok()) << accepted.error().message;
    m_client->abort(mms::verbatim("Next."));
    m_server->stop();
    // A certificate that is pinned says itself whose it is.
    tls.acceptsOtherNames = false;
    tls.pins = {*osi::certificateFingerprint(other.certificateFile)};
    const auto pinned = connectSecure(startSecure(server), tls);
    EXPECT_TRUE(pinned.ok()) << pinned.error().message;
}

TEST_F(Tls, endsWithoutACommonVersionSaySo)
{
    osi::TlsOptions server = deviceOptions();
    server.minimumVersion = osi::TlsVersion::Tls13;
    osi::TlsOptions tls = operatorOptions();
    tls.maximumVersion = osi::TlsVersion::Tls12;
    const auto [client, theirs] = refusals(server, tls);
    EXPECT_EQ(client, "The peer and this side have no version of TLS in common.");
    EXPECT_EQ(theirs, "The peer and this side have no version of TLS in common.");
}

TEST_F(Tls, aPlainClientIsRefusedByASecureServerAndBothSaySo)
{
    const std::uint16_t port = startSecure(deviceOptions());
    const auto opened = connect(port, quickOptions());
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().message, "The peer speaks TLS, which is not configured here.");
    EXPECT_EQ(m_tlsDevice->refusal(), "The peer does not speak TLS, which is required here.");
}

TEST_F(Tls, aSecureClientIsRefusedByAPlainServerAndBothSaySo)
{
    const auto opened = connectSecure(startServer(), operatorOptions());
    ASSERT_FALSE(opened.ok());
    EXPECT_TRUE(contains(opened.error().message.english(), "it may not speak TLS on this port"))
        << opened.error().message;
    EXPECT_EQ(m_tlsDevice->refusal(), "The peer speaks TLS, which is not configured here.");
}

TEST_F(Tls, aPeerThatAnswersWithSomethingElseDoesNotSpeakTls)
{
    RawPeer peer;
    AssociationOptions options = quickOptions();
    options.link.tls = operatorOptions();
    m_client = Association::create(m_loop.executor(), options, {});
    Awaited<Result<InitiateParameters>> opened;
    m_client->connect("127.0.0.1", peer.port(), opened.setter());
    peer.accept();
    EXPECT_FALSE(peer.receive().empty());
    peer.send(fromHex("0300001611d00001000100c0010ac1020001c2020001"));
    peer.close();
    const auto result = opened.get();
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().message, "The peer does not speak TLS.");
}

TEST_F(Tls, aPeerThatIsSlowWithItsHandshakeIsCutOff)
{
    ServerOptions server;
    server.association.link.tls = deviceOptions();
    server.association.link.establishTimeout = 150ms;
    const std::uint16_t port = startServer(server);
    RawPeer silent;
    silent.connect(port);
    EXPECT_TRUE(silent.receive().empty());
    EXPECT_EQ(m_tlsDevice->refusal(), "The peer did not complete the TLS handshake in time.");
    RawPeer halfway;
    halfway.connect(port);
    halfway.send(fromHex("16030100c8010000"));
    EXPECT_TRUE(halfway.receive().empty());
    EXPECT_EQ(m_tlsDevice->refusal(), "The peer did not complete the TLS handshake in time.");
    RawPeer deaf;
    AssociationOptions options = quickOptions();
    options.link.tls = operatorOptions();
    options.link.establishTimeout = 150ms;
    const auto opened = connect(deaf.port(), options);
    ASSERT_FALSE(opened.ok());
    EXPECT_EQ(opened.error().message, "The peer did not complete the TLS handshake in time.");
}

TEST_F(Tls, filesThatAreMissingOrHoldSomethingElseAreNamed)
{
    osi::TlsOptions tls = operatorOptions();
    tls.certificateFile = "/nowhere/own.pem";
    expectInvalid(tls, "The file \"/nowhere/own.pem\" with the own certificate cannot be opened: "
                       "No such file or directory");
    tls = operatorOptions();
    tls.certificateFile = {};
    expectInvalid(tls, "No file is given for the own certificate");
    tls = operatorOptions();
    tls.keyFile = "/nowhere/own.key";
    expectInvalid(tls, "The file \"/nowhere/own.key\" with the private key cannot be opened");
    tls = operatorOptions();
    tls.authorityFiles = {"/nowhere/authority.pem"};
    expectInvalid(tls, "with an authority cannot be opened");
    tls = operatorOptions();
    tls.revocationFiles = {"/nowhere/list.pem"};
    expectInvalid(tls, "with a revocation list cannot be opened");
    const std::string text = s_certificates->file("text.pem", "Not what it seems\n");
    tls = operatorOptions();
    tls.certificateFile = text;
    expectInvalid(tls, "holds no certificate in PEM");
    tls = operatorOptions();
    tls.keyFile = text;
    expectInvalid(tls, "holds no private key in PEM");
    tls = operatorOptions();
    tls.revocationFiles = {s_authority.certificateFile};
    expectInvalid(tls, "holds no revocation list in PEM");
    tls = operatorOptions();
    tls.authorityFiles = {s_certificates->file("cut.pem", "-----BEGIN CERTIFICATE-----\nMIIB\n")};
    expectInvalid(tls, "holds no certificate in PEM");
}

TEST_F(Tls, optionsThatDoNotFitEachOtherAreSaid)
{
    osi::TlsOptions tls = operatorOptions();
    tls.keyFile = s_device.keyFile;
    expectInvalid(tls, "does not fit the certificate");
    tls = operatorOptions();
    tls.authorityFiles.clear();
    expectInvalid(tls, "Neither an authority nor a fingerprint says which peers are trusted.");
    tls = operatorOptions();
    tls.pins = {"12:34"};
    expectInvalid(tls, "\"12:34\" is not a SHA-256 fingerprint");
    tls = operatorOptions();
    tls.minimumVersion = osi::TlsVersion::Tls13;
    tls.maximumVersion = osi::TlsVersion::Tls12;
    expectInvalid(tls, "is above the highest one");
    tls = TestCertificates::options(s_certificates->issue(s_authority, "Early", inTheFuture),
                                    s_authority);
    expectInvalid(tls, "is valid only from 20");
    EXPECT_TRUE(osi::validate(operatorOptions()).ok());
}

TEST_F(Tls, anEncryptedKeyNeedsItsPassword)
{
    osi::TlsOptions tls = operatorOptions();
    tls.keyFile = s_certificates->encryptedKey(s_operator, "open sesame");
    expectInvalid(tls, "is encrypted, and no password is given");
    tls.keyPassword = "wrong";
    expectInvalid(tls, "does not open with the password that is given");
    tls.keyPassword = "open sesame";
    EXPECT_TRUE(osi::validate(tls).ok());
}

TEST_F(Tls, badOptionsEndTheAttemptBeforeAnythingIsSent)
{
    osi::TlsOptions tls = operatorOptions();
    tls.certificateFile = "/nowhere/own.pem";
    const auto opened = connectSecure(startServer(), tls);
    ASSERT_FALSE(opened.ok());
    EXPECT_TRUE(contains(opened.error().message.english(), "cannot be opened"));
    ServerOptions server;
    server.address = "127.0.0.1";
    server.port = 0;
    server.association.link.tls = tls;
    const auto started = Server::create(m_loop.executor(), server, m_device)->start();
    ASSERT_FALSE(started.ok());
    EXPECT_TRUE(contains(started.error().message.english(), "cannot be opened"));
}
