#!/bin/sh
# Runs a test program inside a network namespace of its own (a new user and
# network namespace: only loopback, up, with multicast routed to it), so that
# nothing the test sends can reach the machine's network. Where namespaces
# can't be made, the program runs without KESTRUM_NETNS and its network tests
# skip with a message.
if unshare -rn true 2>/dev/null; then
    exec unshare -rn sh -c 'ip link set lo up multicast on && ip route add 224.0.0.0/4 dev lo && KESTRUM_NETNS=1 exec "$@"' sh "$@"
fi
echo "in-netns: no network namespace here (unshare -rn failed); network tests skip" >&2
exec "$@"
