<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Application</name>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 added, %2 updated, %3 unchanged, %n line with errors</numerusform>
            <numerusform>%1 added, %2 updated, %3 unchanged, %n lines with errors</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>%n device answered that is not the one known so far. Accept it only if you know why, as after an exchange or a new certificate: from the next check on it is sent what is stored as user name and password.</numerusform>
            <numerusform>%n devices answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n device accepted.</numerusform>
            <numerusform>%n devices accepted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n device takes the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</numerusform>
            <numerusform>%n devices take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>%n device may be sent its password in the clear.</numerusform>
            <numerusform>%n devices may be sent their passwords in the clear.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message numerus="yes">
        <source>%n node(s) left out, which are no devices or have no address.</source>
        <translation>
            <numerusform>%n node left out, which is no device or has no address.</numerusform>
            <numerusform>%n nodes left out, which are no devices or have no address.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>%n node in it can still be read.</numerusform>
            <numerusform>%n nodes in it can still be read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n node selected</numerusform>
            <numerusform>%n nodes selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>What the first %n of them has:</numerusform>
            <numerusform>What the first %n of them share:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>The factory IP address of %n of the selected cameras is not known:</numerusform>
            <numerusform>The factory IP address of %n of the selected cameras is not known:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>The %n selected device does not have the same user name and password: there are %1 user names and %2 passwords.</numerusform>
            <numerusform>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n device: access to recordings set.</numerusform>
            <numerusform>%n devices: access to recordings set.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n left as it was.</numerusform>
            <numerusform>%n left as they were.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n device: user name and password set.</numerusform>
            <numerusform>%n devices: user name and password set.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n device)</numerusform>
            <numerusform>%1 (%n devices)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Edit %n Node</numerusform>
            <numerusform>Edit %n Nodes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Asking %n device what it is. Nothing is stored yet.</numerusform>
            <numerusform>Asking %n devices what they are. Nothing is stored yet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n device said nothing:</numerusform>
            <numerusform>%n devices said nothing:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n device filled in.</numerusform>
            <numerusform>%n devices filled in.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Only of the %n selected node</numerusform>
            <numerusform>Only of the %n selected nodes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>%n selected change</numerusform>
            <numerusform>%n selected changes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n line with errors would be left out.</numerusform>
            <numerusform>%n lines with errors would be left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n line may be meant differently.</numerusform>
            <numerusform>%n lines may be meant differently.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 added, %2 updated, %3 unchanged, %n line with errors.</numerusform>
            <numerusform>%1 added, %2 updated, %3 unchanged, %n lines with errors.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>Importing this list would add %n device, change %1 and leave %2 as they are.</numerusform>
            <numerusform>Importing this list would add %n devices, change %1 and leave %2 as they are.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>And %n more; koclient --verify-log names it.</numerusform>
            <numerusform>And %n more; koclient --verify-log names them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n device seen at a new address: Network &gt; Seen at a New Address</numerusform>
            <numerusform>%n devices seen at a new address: Network &gt; Seen at a New Address</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n row copied.</numerusform>
            <numerusform>%n rows copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n address copied.</numerusform>
            <numerusform>%n addresses copied.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n node edited.</numerusform>
            <numerusform>%n nodes edited.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n change since then does not fit what is there now: what was before it is not known.</numerusform>
            <numerusform>%n changes since then do not fit what is there now: what was before them is not known.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>%n node then, %1 different now; %2 shown</numerusform>
            <numerusform>%n nodes then, %1 different now; %2 shown</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n node removed.</numerusform>
            <numerusform>%n nodes removed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n device: location and tags set.</numerusform>
            <numerusform>%n devices: location and tags set.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Where is the selected device? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</numerusform>
            <numerusform>Where are the %n selected devices? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Remove this node? Edit &gt; Undo brings it back.</numerusform>
            <numerusform>Remove these %n nodes? Edit &gt; Undo brings them back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Nobody else uses %n recording folder:</numerusform>
            <numerusform>Nobody else uses %n recording folders:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>The scan has found %n new device and added it to the database:</numerusform>
            <numerusform>The scan has found %n new devices and added them to the database:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n device found and added.</numerusform>
            <numerusform>%n devices found and added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n device taken out again.</numerusform>
            <numerusform>%n devices taken out again.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n row with its history is at &quot;%1&quot;, and the same there as here.</numerusform>
            <numerusform>%n rows with their history are at &quot;%1&quot;, and the same there as here.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n change could not be made</numerusform>
            <numerusform>%1, %n changes could not be made</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Sending %n change</numerusform>
            <numerusform>Sending %n changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Server away since %1, %n change waiting</numerusform>
            <numerusform>Server away since %1, %n changes waiting</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Sending: %n change left</numerusform>
            <numerusform>Sending: %n changes left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>A passphrase needs at least %n character.</numerusform>
            <numerusform>A passphrase needs at least %n characters.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n camera written.</numerusform>
            <numerusform>%n cameras written.</numerusform>
        </translation>
    </message>
</context>
</TS>
