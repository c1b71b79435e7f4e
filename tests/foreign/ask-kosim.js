// Looks at kosim through a client of ONVIF that others wrote: what our own client and kosim both get wrong would
// else never be seen. See CONTRIBUTING.md; exit code 77 where that client is not installed.
//
//     node ask-kosim.js KOSIM FOLDER_WITH_NODE_MODULES
'use strict';
const {spawn} = require('child_process');
const {createRequire} = require('module');
const assert = require('assert');
const path = require('path');
const util = require('util');

const [kosim, folder] = process.argv.slice(2);
let Cam;
try {
    Cam = createRequire(path.resolve(folder) + '/')('onvif').Cam;
} catch (error) {
    if (error.code !== 'MODULE_NOT_FOUND')
        throw error;
    console.log(`SKIPPED: no foreign client; npm install --prefix ${folder} onvif@0.8.3`);
    process.exit(77);
}

const port = 20000 + process.pid % 20000;
const kinds = ['digest', 'token', 'clock', 'open'];

const asked = (cam, operation, ...rest) => util.promisify(cam[operation].bind(cam))(...rest);

function connected(camera, password) {
    return new Promise((resolve, reject) => {
        const options = {hostname: `127.0.1.${camera}`, port, username: 'admin', password, timeout: 10000};
        const cam = new Cam(options, error => (error ? reject(error) : resolve(cam)));
    });
}

async function look(camera) {
    const cam = await connected(camera, 'kosim-pass');
    const information = await asked(cam, 'getDeviceInformation');
    assert.strictEqual(information.manufacturer, 'Kosim');
    assert.strictEqual(information.model, 'KS-1');
    assert.strictEqual(information.serialNumber, `KS00000${camera}`);
    const time = await asked(cam, 'getSystemDateAndTime');
    const late = (Date.now() - time.getTime()) / 1000;
    const wanted = kinds[camera - 1] === 'clock' ? 3 * 3600 + 120 : 0;
    assert(Math.abs(late - wanted) < 60, `the clock is ${late} s late`);
    const interfaces = [].concat(await asked(cam, 'getNetworkInterfaces'));
    assert.strictEqual(interfaces[0].info.hwAddress, `02:6b:73:00:00:0${camera}`);
    assert.strictEqual(interfaces[0].IPv4.config.manual.address, `127.0.1.${camera}`);
    const profiles = await asked(cam, 'getProfiles');
    assert.deepStrictEqual(profiles.map(profile => profile.$.token), ['P1', 'P2']);
    const resolution = profiles[0].videoEncoderConfiguration.resolution;
    assert.deepStrictEqual([resolution.width, resolution.height], [1920, 1080]);
    const stream = await asked(cam, 'getStreamUri', {protocol: 'RTSP', profileToken: 'P1'});
    assert.strictEqual(stream.uri, `rtsp://127.0.1.${camera}:8554/stream/P1`);
    const snapshot = await asked(cam, 'getSnapshotUri', {profileToken: 'P2'});
    assert.strictEqual(snapshot.uri, `http://127.0.1.${camera}:${port}/snapshot/P2`);
}

async function refused(camera) {
    const cam = await connected(camera, 'wrong').catch(error => error);
    const answer = cam instanceof Error ? cam : await asked(cam, 'getDeviceInformation').catch(error => error);
    assert(answer instanceof Error, `${kinds[camera - 1]} takes any password`);
}

async function all() {
    for (let camera = 1; camera <= kinds.length; ++camera) {
        await look(camera);
        if (kinds[camera - 1] !== 'open')
            await refused(camera);
        console.log(`${kinds[camera - 1]}: as it should be`);
    }
}

const site = spawn(kosim, ['--one-server', '--no-announce', '--http-port', String(port), '--cameras',
    String(kinds.length), '--onvif', kinds.join(',')], {stdio: ['ignore', 'pipe', 'ignore']});
const limit = setTimeout(() => end(new Error('it takes too long')), 60000);

function end(error) {
    clearTimeout(limit);
    site.kill();
    if (error)
        console.error(error);
    process.exit(error ? 1 : 0);
}

let said = '';
site.on('error', end);
site.stdout.on('data', data => {
    const wasReady = said.includes('ready: ');
    said += data;
    if (!wasReady && said.includes('ready: '))
        all().then(() => end(), end);
});
