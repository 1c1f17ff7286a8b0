"""What the node answers to a command while faults are planned, worked out beside it."""

from dataclasses import dataclass, field

NO_DATA = "Data could not be retrieved!"
REFUSED_CODE = 32768  # of the predistortion controllers


@dataclass
class Fault:
    """As "addFault" plans it: from the call `first` of those that it sees, `calls` times."""

    call: str
    channel: int | None
    text: str
    throws: bool
    first: int
    calls: int
    seen: int = 0
    hits: int = 0

    def words(self) -> str:
        """Behind "addFault"."""
        keys = [self.call]
        keys += [f"channel={self.channel}"] if self.channel else []
        # A predistortion controller answers a code alone.
        keys += [f'text="{self.text}"'] if self.throws or not self.call.startswith("IDpd") else []
        keys += ["throws=true"] if self.throws else []
        keys += [f"from_call={self.first}"] if self.first > 1 else []
        keys += [f"calls={self.calls}"]
        return " ".join(keys)

    def line(self) -> str:
        """Of "listFaults"."""
        return f"{self.words()}: seen {self.seen}, hit {self.hits}\n"


class FaultPlan:
    """Every fault counts a call that it could hit; the one planned first answers it."""

    def __init__(self) -> None:
        self.faults: list[Fault] = []

    def call(self, name: str, channel: int) -> Fault | None:
        hit = None
        for fault in self.faults:
            if fault.call == name and fault.channel in (None, channel):
                fault.seen += 1
                if hit is None and fault.seen >= fault.first and fault.hits < fault.calls:
                    hit = fault
        if hit:
            hit.hits += 1
        return hit


@dataclass
class Answer:
    """The part of an answer that is known before. A report of None is not: any but an empty one fits."""

    result: int | None = 0
    report: str | None = ""
    traced: list[str] = field(default_factory=list)
    error: str | None = None


@dataclass
class Channel:
    """What was set, to be read back."""

    preamble: int = 0
    muted: bool = False
    coefficients: str = "0" * 40
    hop_length_time_ns: int | None = None  # unknown until it is set


class Prediction:
    """Of a node that was just started."""

    def __init__(self) -> None:
        self.plan = FaultPlan()
        self._channels = {1: Channel(), 2: Channel()}

    def answer(self, command: str, channel: int, arguments: list[str]) -> Answer:
        """One of the operations is called."""
        calls = CALLS[command]
        for call in calls:
            fault = self.plan.call(call, channel)
            if fault and fault.throws:
                return Answer(None, "", [], f"{command}: threw {fault.text}")
            if fault:
                if call == "IDpdControllerSplit.getStartParameter":
                    later = self.plan.call("IDpdControllerSplit.start", channel)  # 0 is read, and tried
                    if later and later.throws:
                        return Answer(None, "", [], f"{command}: threw {later.text}")
                return refused(command, call, fault.text)
        return self._done(command, self._channels[channel], arguments)

    @staticmethod
    def _done(command: str, channel: Channel, arguments: list[str]) -> Answer:
        match command:
            case "setXpicSlaveMute":
                channel.muted = arguments[0] != "0"
            case "xpicAcquireStart" if channel.muted:
                return refused(command, "tiManageXpic", "acquisition: found the slave muted, expected it unmuted")
            case "setXpicPreamble":
                channel.preamble = int(arguments[0])
            case "getXpicPreamble":
                return Answer(report=f"{channel.preamble}\n")
            case "setDpdCoefficients":
                channel.coefficients = arguments[0]
            case "getDpdCoefficients":
                return Answer(report=f"{channel.coefficients}\n")
            case "calibratePps":
                channel.hop_length_time_ns = int(arguments[1])
            case "getPpsHopLengthTime" if channel.hop_length_time_ns is not None:
                return Answer(report=f"PPS hop length time[nsec]: {channel.hop_length_time_ns}\n")
        return Answer(report=None if command.startswith("get") else "")


# The platform's calls that a command makes, in their order.
CALLS: dict[str, list[str]] = {
    "getCtStatus": [
        "criGetRadioChannelStatus",
        "criGetRadioChannelCapability",
        "ITiManageRadioChannelNearEnd.getRadioChannelInfo",
    ],
    "getBcmModemStatus": ["ITiGetDspModemStatus.getDspModemStatus", "ITiGetDspModemStatus.toString"],
    "getPpsCalibrationStatus": ["criGetCalibrationStatusDspPps"],
    "getPpsHopLengthTime": ["criGetHopLengthTimeDspPps"],
    "calibratePps": ["criCalibrateDspPps"],
    "setPpsSource": ["criSetSourceDspPps"],
    "setPpsOutputMode": ["criSetOutputModeDspPps"],
    "startDpd": ["IDpdControllerSplit.getStartParameter", "IDpdControllerSplit.start"],
    "stopDpd": ["IDpdControllerSplit.stop"],
    "setDpdCoefficients": ["IDpdControllerSplit.setCoeffs"],
    "getDpdCoefficients": ["IDpdControllerSplit.getCoeffs"],
    "setXpicSlaveMute": ["tiManageXpic"],
    "xpicAcquireStart": ["tiManageXpic"],
    "getXpicPreamble": ["tiManageXpic"],
    "setXpicPreamble": ["tiManageXpic"],
    "getXpicStatus": ["tiManageXpic"],
}

DPD_AIMS = {
    "startDpd": "start dpd",
    "stopDpd": "stop dpd",
    "setDpdCoefficients": "set dpd coefficients",
    "getDpdCoefficients": "get dpd coefficients",
}


def refused(command: str, call: str, text: str) -> Answer:
    """A call of the command was refused with that text."""
    failed = f"{command}: failed"
    if command == "getCtStatus":
        return Answer(0, NO_DATA, [f"get failed: {text}\n"])
    if call == "ITiGetDspModemStatus.toString":
        return Answer(0, text)
    if command == "getBcmModemStatus":
        return Answer(1, NO_DATA, [f"getBcmModemStatus failed: {text}\n"], failed)
    if command in DPD_AIMS:
        line = f"{command}(): failed to {DPD_AIMS[command]}, EDPDResult = {REFUSED_CODE}\n"
        return Answer(1, "", [line], failed)
    if command == "getXpicStatus":
        return Answer(1, text, [], failed)
    if call == "tiManageXpic":
        return Answer(1, "", [text], failed)
    return Answer(1, NO_DATA if command.startswith("get") else "", [f"{command}(): failed: {text}"], failed)
