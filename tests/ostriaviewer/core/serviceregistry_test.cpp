// SPDX-License-Identifier: Apache-2.0
// Tests of the list of services.
#include "serviceregistry.h"

#include <QReadLocker>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Core::Service {
namespace {

class FirstService : public IService
{};

class SecondService : public IService
{};

/// Offers a second interface beside that of a service, as the host's objects do.
class OtherInterface
{
public:
    virtual ~OtherInterface() = default;
};

class DoubleService : public FirstService, public OtherInterface
{};

TEST(ServiceRegistry, IsEmptyAtFirst)
{
    const CServiceRegistry registry;
    EXPECT_TRUE(registry.services().isEmpty());
    EXPECT_TRUE(registry.find<FirstService>().isNull());
}

TEST(ServiceRegistry, TakesAServiceOnceAndNoNull)
{
    CServiceRegistry registry;
    const auto service = QSharedPointer<FirstService>::create();
    EXPECT_TRUE(registry.add(service));
    EXPECT_FALSE(registry.add(service));
    EXPECT_FALSE(registry.add(ServicePtr()));
    EXPECT_EQ(registry.services().size(), 1);
}

TEST(ServiceRegistry, FindsTheFirstOfAKindInTheOrderOfAdding)
{
    CServiceRegistry registry;
    const auto second = QSharedPointer<SecondService>::create();
    const auto both = QSharedPointer<DoubleService>::create();
    const auto first = QSharedPointer<FirstService>::create();
    registry.add(second);
    registry.add(both);
    registry.add(first);
    EXPECT_EQ(registry.find<SecondService>(), second);
    EXPECT_EQ(registry.find<FirstService>(), both);
    EXPECT_EQ(registry.find<OtherInterface>().data(), static_cast<OtherInterface*>(both.data()));
    EXPECT_EQ(registry.services(), (QList<ServicePtr>{second, both, first}));
}

TEST(ServiceRegistry, ARemovedServiceIsGoneAndSharedOwnersKeepIt)
{
    CServiceRegistry registry;
    auto service = QSharedPointer<FirstService>::create();
    const QWeakPointer<FirstService> watch(service);
    registry.add(service);
    const auto found = registry.find<FirstService>();
    EXPECT_TRUE(registry.remove(service));
    EXPECT_FALSE(registry.remove(service));
    EXPECT_FALSE(registry.remove(ServicePtr()));
    EXPECT_TRUE(registry.find<FirstService>().isNull());
    service.reset();
    EXPECT_FALSE(watch.isNull()) << "found holds it";
}

TEST(ServiceRegistry, LetsSeveralReadersWalkAtOnce)
{
    CServiceRegistry registry;
    registry.add(QSharedPointer<FirstService>::create());
    const QReadLocker walking(&registry.lock());
    bool found = false;
    std::thread other([&] { found = !registry.find<FirstService>().isNull(); });
    other.join();
    EXPECT_TRUE(found);
}

TEST(ServiceRegistry, MayBeSearchedWhileServicesComeAndGo)
{
    CServiceRegistry registry;
    const auto lasting = QSharedPointer<SecondService>::create();
    registry.add(lasting);
    std::atomic_int misses(0);
    std::vector<std::thread> readers;
    for (int i = 0; i < 3; ++i)
        readers.emplace_back([&] {
            for (int n = 0; n < 1000; ++n)
                if (registry.find<SecondService>() != lasting)
                    ++misses;
        });
    for (int n = 0; n < 1000; ++n) {
        const auto passing = QSharedPointer<FirstService>::create();
        registry.add(passing);
        registry.remove(passing);
    }
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_EQ(misses, 0);
}

} // namespace
} // namespace Core::Service
