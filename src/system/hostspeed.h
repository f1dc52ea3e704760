#pragma once

class BuretteController;
class SetupModel;
class TitrationControllerBase;
class mspController;

// Host builds only: runs the application's clock F times faster, with the
// virtual instrument's (started with the same --speed): the slave poll, the
// burette tick, the controller's waits and the due checks. Time then follows
// the slave's time stamps. The factor comes from KESTRUM_SPEED.
class HostSpeed
{
public:
    // The factor asked for in the environment; 1 when unset, on the target,
    // or out of range (0.1 to 1000, logged).
    static double fromEnvironment();
    static void apply(double factor, mspController *msp, BuretteController *bc, TitrationControllerBase *tc,
                      SetupModel *setup);
};
