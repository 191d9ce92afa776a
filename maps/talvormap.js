// SPDX-FileCopyrightText: 2026 Quellfern
// SPDX-License-Identifier: GPL-3.0-or-later
'use strict';

/**
 * What all map pages share. The program knows four global functions, and two that a page may lack
 * (mapLoseFix, mapMissTelemetry), all defined at the end; each page adds one provider, the object that a provider's script hands to talvorMap.use():
 *
 * - scriptUrl(key, language): the provider's own script, which calls talvorMap.providerReady();
 *   absent if the page has loaded it
 * - key: which of the program's keys it needs, and which text names it; absent likewise
 * - controls: a selector of what moves the view when it is clicked
 * - create(element): makes the map, showing something
 * - point(lng, lat): a WGS-84 position as the provider's object, shifted to the provider's datum,
 *   with the fields lng and lat
 * - at(lng, lat): a position in the provider's datum, whose longitude may lie beyond 180 degrees;
 *   absent if the map ends there
 * - drawLine(name, segments), drawMark(name, point): replace what LINES and MARKS name; no segments
 *   and null remove it
 * - centre(point, zoom), panTo(point), fit(southWest, northEast, padding): move the view; a
 *   longitude to fit may lie beyond 180 degrees
 * - bounds(): {west, south, east, north} of the view, or null if it is not known yet
 * - resized(): the window has another size; absent if the provider sees to that
 */
window.talvorMap = (() => {
    const PROVIDER_TIMEOUT_MS = 10000;
    const HANDS_OFF_MS = 5000;
    const CITY_ZOOM = 12;
    const STREET_ZOOM = 15;
    // The program asks for the sample of the played second every 0.8 seconds, at double speed too.
    // A larger step is a jump.
    const LARGEST_STEP = 5;
    // A step of a drive is up to a kilometre for each sample since the last fix, as far as these
    // count.
    const STEP_DEG = 0.009;
    const STEPS_WITHOUT_FIX = 60;
    const STRANDS_TRIED = 8;
    const SMALLEST_STRAND = 0.1;
    const DRAG_PX = 4;
    const NEAR_PX = 12; // so far beside the route a click still means it
    // About 400 m: a parked car is shown with the streets around it.
    const SMALLEST_SPAN_DEG = 0.004;
    // Below this the view is parked out of sight.
    const SMALLEST_VIEW_PX = 60;
    // Room for marks and controls around the whole route, and less where a point counts as in view.
    const FIT_PADDING_PX = { top: 16, right: 18, bottom: 28, left: 40 };
    const EDGE_PX = 12;

    /** In drawing order. The casing keeps the route visible on light and on dark ground. */
    const LINES = {
        casing: { color: 'rgb(255, 255, 255)', width: 7, opacity: 0.9 },
        route: { color: 'rgb(85, 88, 100)', width: 4, opacity: 1 },
        driven: { color: 'rgb(38, 153, 238)', width: 4, opacity: 1 },
    };
    const MARKS = {
        start: { image: 'start.svg', size: 16 },
        end: { image: 'end.svg', size: 16 },
        position: { image: 'position.svg', size: 22 },
        lost: { image: 'lost.svg', size: 22 }, // instead of it while there is no fix
    };

    const TEXTS = {
        en: {
            google: 'Google Maps',
            baidu: 'Baidu Maps',
            keyMissing: '{map} needs a key of your own.',
            keyRefused: '{map} does not accept the key.',
            noAnswer: '{map} cannot be loaded: the service is out of reach or no longer supports '
                + 'this program.',
            keyHint: 'The key belongs in this file:',
            filesMissing: 'The map cannot be shown because files of the program are missing.',
            tilesMissing: 'The map images cannot be loaded at the moment.',
            noTelemetry: 'No telemetry in this recording',
            zoomIn: 'Zoom in',
            zoomOut: 'Zoom out',
        },
        zh: {
            google: '谷歌地图',
            baidu: '百度地图',
            keyMissing: '{map}需要您自己的密钥。',
            keyRefused: '{map}不接受该密钥。',
            noAnswer: '{map}无法加载：无法连接到服务，或服务已不再支持本程序。',
            keyHint: '密钥请填写在此文件中：',
            filesMissing: '程序文件不完整，无法显示地图。',
            tilesMissing: '暂时无法加载地图图片。',
            noTelemetry: '此录像不含遥测数据',
            zoomIn: '放大',
            zoomOut: '缩小',
        },
        'zh-TW': {
            google: 'Google 地圖',
            baidu: '百度地圖',
            keyMissing: '{map}需要您自己的金鑰。',
            keyRefused: '{map}不接受此金鑰。',
            noAnswer: '{map}無法載入：無法連線到服務，或服務已不再支援本程式。',
            keyHint: '金鑰請填寫在此檔案中：',
            filesMissing: '程式檔案不完整，無法顯示地圖。',
            tilesMissing: '暫時無法載入地圖圖片。',
            noTelemetry: '此錄影不含遙測資料',
            zoomIn: '放大',
            zoomOut: '縮小',
        },
        fr: {
            keyMissing: '{map} nécessite une clé personnelle.',
            keyRefused: '{map} refuse la clé.',
            noAnswer: 'Impossible de charger {map}\u00a0: le service est injoignable ou ne '
                + 'prend plus en charge ce programme.',
            keyHint: 'La clé s’inscrit dans ce fichier\u00a0:',
            filesMissing: 'Impossible d’afficher la carte\u00a0: des fichiers du programme sont '
                + 'manquants.',
            tilesMissing: 'Les images de la carte sont indisponibles.',
            noTelemetry: 'Aucune donnée de télémétrie dans cet enregistrement',
            zoomIn: 'Zoom avant',
            zoomOut: 'Zoom arrière',
        },
        it: {
            keyMissing: 'Per {map} serve una chiave personale.',
            keyRefused: '{map} non accetta la chiave.',
            noAnswer: 'Impossibile caricare {map}: il servizio non è raggiungibile o non '
                + 'supporta più questo programma.',
            keyHint: 'La chiave va inserita in questo file:',
            filesMissing: 'Impossibile mostrare la mappa: mancano alcuni file del programma.',
            tilesMissing: 'Le immagini della mappa non sono disponibili.',
            noTelemetry: 'Nessun dato di telemetria in questa registrazione',
            zoomIn: 'Ingrandisci',
            zoomOut: 'Riduci',
        },
        ja: {
            google: 'Google マップ',
            baidu: '百度地図',
            keyMissing: '{map}を使うには、ご自身のキーが必要です。',
            keyRefused: '{map}がこのキーを受け付けません。',
            noAnswer: 'サービスに接続できないか、このプログラムがサポート対象外になったため、{map}を読み込めません。',
            keyHint: 'キーは次のファイルに入力します：',
            filesMissing: 'プログラムのファイルが不足しているため、地図を表示できません。',
            tilesMissing: '現在、地図の画像を読み込めません。',
            noTelemetry: 'この録画にテレメトリーはありません',
            zoomIn: '拡大',
            zoomOut: '縮小',
        },
        pl: {
            google: 'Mapy Google',
            baidu: 'Mapy Baidu',
            keyMissing: 'Usługa {map} wymaga własnego klucza.',
            keyRefused: 'Usługa {map} nie przyjmuje klucza.',
            noAnswer: 'Nie można wczytać usługi {map}: jest nieosiągalna lub nie obsługuje już '
                + 'tego programu.',
            keyHint: 'Klucz należy wpisać do tego pliku:',
            filesMissing: 'Nie można wyświetlić mapy: brakuje plików programu.',
            tilesMissing: 'W tej chwili nie można wczytać obrazów mapy.',
            noTelemetry: 'To nagranie nie zawiera danych telemetrycznych',
            zoomIn: 'Powiększ',
            zoomOut: 'Pomniejsz',
        },
        ru: {
            google: 'Google Карты',
            baidu: 'Карты Baidu',
            keyMissing: 'Сервису «{map}» нужен собственный ключ.',
            keyRefused: 'Сервис «{map}» не принимает ключ.',
            noAnswer: 'Не удалось загрузить «{map}»: сервис недоступен или больше не '
                + 'поддерживает эту программу.',
            keyHint: 'Ключ указывается в этом файле:',
            filesMissing: 'Не удалось показать карту: не хватает файлов программы.',
            tilesMissing: 'Сейчас не удаётся загрузить изображения карты.',
            noTelemetry: 'В этой записи нет телеметрии',
            zoomIn: 'Приблизить',
            zoomOut: 'Отдалить',
        },
        de: {
            keyMissing: 'Für {map} wird ein eigener Schlüssel benötigt.',
            keyRefused: '{map} nimmt den Schlüssel nicht an.',
            noAnswer: '{map} lässt sich nicht laden: Der Dienst ist nicht erreichbar oder '
                + 'unterstützt dieses Programm nicht mehr.',
            keyHint: 'Der Schlüssel gehört in diese Datei:',
            filesMissing: 'Die Karte kann nicht angezeigt werden, weil Dateien des Programms '
                + 'fehlen.',
            tilesMissing: 'Die Kartenbilder lassen sich zurzeit nicht laden.',
            noTelemetry: 'Keine Telemetriedaten in dieser Aufnahme',
            zoomIn: 'Vergrößern',
            zoomOut: 'Verkleinern',
        },
        es: {
            keyMissing: '{map} necesita una clave propia.',
            keyRefused: '{map} no acepta la clave.',
            noAnswer: 'No se puede cargar {map}: el servicio no está disponible o ya no es '
                + 'compatible con este programa.',
            keyHint: 'La clave se introduce en este archivo:',
            filesMissing: 'No se puede mostrar el mapa: faltan archivos del programa.',
            tilesMissing: 'Las imágenes del mapa no están disponibles.',
            noTelemetry: 'Esta grabación no contiene datos de telemetría',
            zoomIn: 'Acercar',
            zoomOut: 'Alejar',
        },
        pt: {
            keyMissing: 'O {map} requer uma chave própria.',
            keyRefused: 'O {map} não aceita a chave.',
            noAnswer: 'Não foi possível carregar o {map}: o serviço está inacessível ou já não '
                + 'suporta este programa.',
            keyHint: 'A chave deve ser introduzida neste ficheiro:',
            filesMissing: 'Não é possível mostrar o mapa: faltam ficheiros do programa.',
            tilesMissing: 'As imagens do mapa não estão disponíveis.',
            noTelemetry: 'Esta gravação não contém dados de telemetria',
            zoomIn: 'Ampliar',
            zoomOut: 'Reduzir',
        },
        ko: {
            google: 'Google 지도',
            baidu: '바이두 지도',
            keyMissing: '{map}를 사용하려면 본인의 키가 필요합니다.',
            keyRefused: '{map}가 이 키를 거부했습니다.',
            noAnswer: '서비스에 연결할 수 없거나 이 프로그램이 더 이상 지원되지 않아 {map}를 불러올 수 없습니다.',
            keyHint: '키는 다음 파일에 입력합니다:',
            filesMissing: '프로그램 파일이 없어 지도를 표시할 수 없습니다.',
            tilesMissing: '지금은 지도 이미지를 불러올 수 없습니다.',
            noTelemetry: '이 녹화에는 텔레메트리 데이터가 없습니다',
            zoomIn: '확대',
            zoomOut: '축소',
        },
    };
    TEXTS['zh-HK'] = TEXTS['zh-TW'];

    const KEY_FAULTS = ['keyMissing', 'keyRefused'];

    // The program tells the key for this page, and the path of the user's file with keys, which is
    // nothing for the provider's script to read. A browser tells neither.
    const { file: keyFile = 'mapkeys.ini', ...keys } = window.talvorMapKeys || {};
    delete window.talvorMapKeys;

    const GCJ_RADIUS_M = 6378245.0;
    const GCJ_ECCENTRICITY_SQUARED = 0.00669342162296594323;
    const BD_TURN = Math.PI * 3000 / 180;

    /**
     * Mainland China, as longitude and latitude in turn: within about 50 km along empty land
     * borders, within one at border towns. A plain rectangle would shift Korea, half of Japan and
     * northern India as well. Hong Kong, Macau and Taiwan are outside.
     */
    const MAINLAND_OUTLINE = [
        135.1, 48.4, 134.55, 47.95, 134.75, 47.7, 134, 46.6, 133.15, 45.1, 131.9, 45.3, 131, 44.85,
        131.25, 44.4, 131.25, 43.5, 130.6, 42.42, 130.3, 42.9, 129.85, 42.97, 129.65, 42.4,
        128.1, 42, 128.1, 41.38, 126.9, 41.78, 126.2, 41.08, 125, 40.5, 124.37, 40.09, 124.1, 39.7,
        122.5, 38.5, 123.2, 37.4, 121, 35.5, 123.3, 31, 122.5, 28.5, 121, 26.8, 120.1, 25.5,
        118.7, 24.55, 118.4, 24.56, 118.2, 24.52, 118.19, 24.38, 117.5, 23.3, 115.5, 22.3,
        114.7, 22.4, 114.5, 22.47, 114.45, 22.57, 114.22, 22.55, 114.15, 22.54, 114.08, 22.512,
        114.03, 22.5, 113.95, 22.47, 113.85, 22.4, 113.7, 22.2, 113.57, 22.215, 113.545, 22.214,
        113.53, 22.185, 113.54, 22.1, 113.7, 21.8, 111.5, 20.9, 111.3, 19.5, 109.5, 17.8,
        108.3, 18.5, 108.3, 20.5, 107.97, 21.53, 106.7, 21.97, 106.6, 22.35, 106.8, 22.8,
        105.85, 22.93, 105.3, 23.35, 104.85, 22.9, 104, 22.51, 103, 22.5, 102.15, 22.4, 101.6, 22.3,
        101.8, 21.2, 101.15, 21.5, 100.2, 21.45, 99.2, 22.1, 99.5, 22.95, 98.85, 23.3, 98.85, 24.1,
        97.95, 24.02, 97.75, 23.95, 97.55, 24.7, 98.2, 25.6, 98.7, 26, 98.7, 27.3, 97.7, 28.5,
        97.35, 28.25, 96.2, 28.4, 96, 29.3, 94.6, 29.3, 93.3, 28.65, 92.1, 27.8, 91.6, 27.9,
        90, 28.3, 88.95, 27.3, 88.8, 28, 86.9, 28, 85.97, 27.96, 85.2, 28.3, 84.2, 28.9, 83.2, 29.5,
        81.9, 30.4, 81.2, 30.05, 79, 31.2, 78.75, 32.6, 79.2, 32.6, 78.9, 34.2, 78, 35.5,
        76.2, 35.8, 75, 37.2, 74.8, 38.4, 73.8, 38.6, 73.6, 39.45, 75.2, 40.4, 76.6, 40.5,
        78.2, 41.2, 80.2, 42.1, 80.7, 43.15, 80.35, 44.2, 79.95, 44.85, 82.5, 45.2, 82.4, 45.6,
        83, 47.2, 85.5, 47.1, 85.7, 48.3, 87.3, 49.15, 88, 48.5, 90, 47.9, 91, 46.6, 90.8, 45.3,
        93.5, 44.95, 95.4, 44.3, 96.3, 42.75, 99.5, 42.6, 101.8, 42.5, 105, 41.6, 107.5, 42.4,
        109.5, 42.45, 111.9, 43.72, 111.6, 44.3, 112, 45.05, 113.6, 44.75, 114.5, 45.4, 115.7, 45.5,
        116.2, 46.3, 119.8, 46.7, 118.5, 48, 117.4, 47.65, 115.6, 47.9, 116.7, 49.82, 117.4, 49.63,
        119.2, 50.1, 120.7, 52, 120.1, 52.7, 121, 53.3, 123.5, 53.55, 125.7, 53, 127.5, 50.27,
        127.6, 49.8, 129.5, 49.4, 130.6, 48.9, 131, 47.7, 132.5, 47.75, 133.1, 48.1, 134.6, 48.4,
    ];

    function isInMainland(lng, lat) {
        let inside = false;
        let fromLng = MAINLAND_OUTLINE[MAINLAND_OUTLINE.length - 2];
        let fromLat = MAINLAND_OUTLINE[MAINLAND_OUTLINE.length - 1];
        for (let i = 0; i < MAINLAND_OUTLINE.length; i += 2) {
            const toLng = MAINLAND_OUTLINE[i];
            const toLat = MAINLAND_OUTLINE[i + 1];
            const crosses = (toLat > lat) !== (fromLat > lat)
                && lng < fromLng + (toLng - fromLng) * (lat - fromLat) / (toLat - fromLat);
            inside = inside !== crosses;
            fromLng = toLng;
            fromLat = toLat;
        }
        return inside;
    }

    function waves(x, ...amplitudesAndPeriods) {
        return amplitudesAndPeriods.reduce(
            (sum, [amplitude, period]) => sum + amplitude * Math.sin(Math.PI * x / period), 0)
            * 2 / 3;
    }

    /** WGS-84 to the datum of maps of mainland China, as [lng, lat]; elsewhere the two agree. */
    function wgsToGcj(lng, lat) {
        if (!isInMainland(lng, lat))
            return [lng, lat];
        const x = lng - 105;
        const y = lat - 35;
        const common = waves(x, [20, 1 / 6], [20, 1 / 2]);
        const root = Math.sqrt(Math.abs(x));
        const east = 300 + x + 2 * y + 0.1 * x * x + 0.1 * x * y + 0.1 * root + common
            + waves(x, [20, 1], [40, 3], [150, 12], [300, 30]);
        const north = -100 + 2 * x + 3 * y + 0.2 * y * y + 0.1 * x * y + 0.2 * root + common
            + waves(y, [20, 1], [40, 3], [160, 12], [320, 30]);
        const latRad = lat * Math.PI / 180;
        const w = Math.sqrt(1 - GCJ_ECCENTRICITY_SQUARED * Math.sin(latRad) ** 2);
        const alongParallel = GCJ_RADIUS_M / w * Math.cos(latRad);
        const alongMeridian = GCJ_RADIUS_M * (1 - GCJ_ECCENTRICITY_SQUARED) / w ** 3;
        return [
            lng + east / alongParallel * 180 / Math.PI,
            lat + north / alongMeridian * 180 / Math.PI,
        ];
    }

    /** The further step to Baidu's own datum, as [lng, lat]. */
    function gcjToBd(lng, lat) {
        const radius = Math.hypot(lng, lat) + 0.00002 * Math.sin(lat * BD_TURN);
        const angle = Math.atan2(lat, lng) + 0.000003 * Math.cos(lng * BD_TURN);
        return [radius * Math.cos(angle) + 0.0065, radius * Math.sin(angle) + 0.006];
    }

    /** What a language has no text for is English. */
    function textsIn(name) {
        return { ...TEXTS.en, ...(TEXTS[name] || TEXTS[name.split('-')[0]]) };
    }

    const language = document.documentElement.lang || navigator.language;
    document.documentElement.lang = language;
    const texts = textsIn(language);
    const mapElement = document.getElementById('map');
    const messageElement = document.getElementById('message');
    const noteElement = document.createElement('p');
    noteElement.id = 'note';
    const emptyElement = document.createElement('p');
    emptyElement.id = 'empty';
    mapElement.after(noteElement, emptyElement);

    let adapter = null;  // the page's provider
    let provider = null; // the same once it is ready
    let held = [];       // calls that wait for it
    let timeout = 0;

    // A point is the provider's object, or null where a sample has no fix.
    let incoming = []; // the part of a route that has arrived
    let route = [];    // a complete route
    let live = [];     // {id, point} of the samples played, ids ascending
    let position = null;
    let isLost = false; // it is the last one known, and the car may be elsewhere
    let decisive = [];  // what of the route the view has to show
    let homeLng = null; // all is drawn on the turn of the world around it

    const stale = new Set(); // what the next frame draws again
    let frameRequest = 0;
    // Where the next frame moves the view, in this order; a call drops the wishes it overrules.
    let wantedCentre = null;
    let wantsFit = false;
    let wantsFollow = false;
    let isPlaced = false; // whether the view has gone to the present drive
    let keepsFit = false; // whether the view shows the whole route, and nobody has moved it since
    let lastTouchMs = -Infinity;
    let pressedAt = null;

    const shown = {
        routeSegments: [], drivenSegments: [], position: null, isLost: false, frames: 0, fits: 0,
        fitBounds: null,
    };

    /** The difference between longitudes the short way round. */
    function shortWay(degrees) {
        return degrees - 360 * Math.round(degrees / 360);
    }

    /** Where the point lies on the turn of the world around home, so that no line goes round it. */
    function nearHome(point) {
        const turns = Math.round((homeLng - point.lng) / 360);
        return turns !== 0 && provider.at ? provider.at(point.lng + 360 * turns, point.lat) : point;
    }

    function aroundHome({ lng, lat }) {
        return { lng: homeLng + shortWay(lng - homeLng), lat };
    }

    function isStep(from, to, samples) {
        const east = shortWay(to.lng - from.lng) * Math.cos(from.lat * Math.PI / 180);
        return Math.hypot(east, to.lat - from.lat)
            <= STEP_DEG * Math.min(samples, STEPS_WITHOUT_FIX);
    }

    /**
     * The points without a receiver's wild fixes, one of which would make a drive through a town
     * as small as a dot in a fitted view. Points are put together to strands of possible steps: a
     * wild fix is a strand of its own, while the drive goes on behind it. Strands with less than a
     * tenth of the points of the longest are left out. The result begins in the longest.
     */
    function withoutWildFixes(points) {
        const strands = [];
        const recent = []; // the strands that grew last, the last in front
        points.forEach((point, index) => {
            if (!point)
                return;
            const found = recent.findIndex((s) => isStep(s.points[s.points.length - 1], point,
                index - s.index));
            const [strand] = found < 0 ? [{ points: [] }] : recent.splice(found, 1);
            if (found < 0)
                strands.push(strand);
            strand.points.push(point);
            strand.index = index;
            recent.unshift(strand);
            recent.length = Math.min(recent.length, STRANDS_TRIED);
        });
        strands.sort((a, b) => b.points.length - a.points.length);
        return strands
            .filter((strand) => strand.points.length
                >= SMALLEST_STRAND * strands[0].points.length)
            .flatMap((strand) => strand.points);
    }

    /** A line: a new segment begins after null, and where the provider's map ends. */
    function segmentsOf(points) {
        const segments = [];
        let last = null;
        for (const sample of points) {
            const point = sample && nearHome(sample);
            if (point && last && Math.abs(point.lng - last.lng) < 180)
                segments[segments.length - 1].push(point);
            else if (point)
                segments.push([point]);
            last = point;
        }
        return segments;
    }

    /** The corners of the segments as [west, south, east, north], or null without segments. */
    function boundsOf(segments) {
        if (segments.length === 0)
            return null;
        const bounds = [Infinity, Infinity, -Infinity, -Infinity];
        for (const segment of segments) {
            for (const { lng, lat } of segment) {
                bounds[0] = Math.min(bounds[0], lng);
                bounds[1] = Math.min(bounds[1], lat);
                bounds[2] = Math.max(bounds[2], lng);
                bounds[3] = Math.max(bounds[3], lat);
            }
        }
        return bounds;
    }

    /** The point to draw for a sample, null if the sample has no fix or nonsense for one. */
    function fixAt(lng, lat) {
        const isFix = Math.abs(lng) <= 180 && Math.abs(lat) <= 90 && (lng !== 0 || lat !== 0);
        return isFix ? provider.point(lng, lat) : null;
    }

    function isSamePoint(a, b) {
        return a === b || Boolean(a && b && a.lng === b.lng && a.lat === b.lat);
    }

    /** The route up to the last sample if that sample lies on it, else the samples themselves. */
    function drivenPoints() {
        const last = live[live.length - 1];
        if (last && last.id in route && isSamePoint(route[last.id], last.point))
            return route.slice(0, last.id + 1);
        return live.map((sample) => sample.point);
    }

    function refresh(...parts) {
        parts.forEach((part) => stale.add(part));
        if (!frameRequest)
            frameRequest = requestAnimationFrame(redraw);
    }

    function redraw() {
        frameRequest = 0;
        shown.frames += 1;
        // The view first: lines are projected once, for the view in which they are seen.
        if (stale.has('size') && provider.resized)
            provider.resized();
        if (stale.has('route')) {
            shown.routeSegments = segmentsOf(route);
            shown.fitBounds = boundsOf(decisive.length > 0 ? [decisive.map(aroundHome)] : []);
        }
        placeView();
        if (stale.has('route'))
            drawRoute();
        if (stale.has('driven'))
            drawDriven();
        stale.clear();
    }

    function drawRoute() {
        const segments = shown.routeSegments;
        provider.drawLine('casing', segments);
        provider.drawLine('route', segments);
        const last = segments[segments.length - 1];
        provider.drawMark('start', last ? segments[0][0] : null);
        provider.drawMark('end', last ? last[last.length - 1] : null);
    }

    function drawDriven() {
        shown.drivenSegments = segmentsOf(drivenPoints());
        shown.position = position && nearHome(position);
        provider.drawLine('driven', shown.drivenSegments);
        shown.isLost = isLost && position !== null;
        provider.drawMark('position', isLost ? null : shown.position);
        provider.drawMark('lost', isLost ? shown.position : null);
    }

    function placeView() {
        if (wantedCentre)
            provider.centre(wantedCentre, CITY_ZOOM);
        wantedCentre = null;
        const { clientWidth, clientHeight } = mapElement;
        if (wantsFit && Math.min(clientWidth, clientHeight) >= SMALLEST_VIEW_PX)
            fitRoute();
        if (wantsFollow)
            follow();
        wantsFollow = false;
    }

    function fitRoute() {
        const [west, south, east, north] = shown.fitBounds;
        const growLng = Math.max(0, SMALLEST_SPAN_DEG - (east - west)) / 2;
        const growLat = Math.max(0, SMALLEST_SPAN_DEG - (north - south)) / 2;
        provider.fit({ lng: west - growLng, lat: south - growLat },
            { lng: east + growLng, lat: north + growLat }, FIT_PADDING_PX);
        shown.fits += 1;
        wantsFit = false;
        keepsFit = true;
    }

    /** Users who move the map to look around have some seconds for it. */
    function follow() {
        if (!isPlaced)
            provider.centre(nearHome(position), STREET_ZOOM);
        else if (!isInView(position) && performance.now() - lastTouchMs > HANDS_OFF_MS)
            provider.panTo(nearHome(position));
        isPlaced = true;
    }

    /** How far one goes from the one longitude to the other when going east. */
    function eastOf(from, to) {
        return (to - from) - 360 * Math.floor((to - from) / 360);
    }

    function isInView({ lng, lat }) {
        const view = provider.bounds();
        if (!view)
            return false;
        const isWithin = (share, lengthPx) => share * lengthPx > EDGE_PX
            && (1 - share) * lengthPx > EDGE_PX;
        const width = view.east - view.west;
        return isWithin(eastOf(view.west, lng) / (width > 0 ? width : width + 360),
            mapElement.clientWidth)
            && isWithin((lat - view.south) / (view.north - view.south), mapElement.clientHeight);
    }

    /** Where a position lies in the view, in pixels. All providers draw Mercator's projection. */
    function pixelOf({ lng, lat }, view) {
        const { clientWidth, clientHeight } = mapElement;
        const width = view.east > view.west ? view.east - view.west : view.east - view.west + 360;
        const fromMiddle = eastOf(view.west + width / 2 - 180, lng) - 180;
        const northing = (degrees) => Math.log(Math.tan((90 + degrees) * Math.PI / 360));
        const top = northing(view.north);
        return {
            x: (0.5 + fromMiddle / width) * clientWidth,
            y: (top - northing(lat)) / (top - northing(view.south)) * clientHeight,
        };
    }

    /** How far a place is from the leg between two others, and which share of it lies before. */
    function distanceToLeg(place, from, to) {
        const [x, y] = [to.x - from.x, to.y - from.y];
        const length = x * x + y * y;
        const along = length > 0 ? ((place.x - from.x) * x + (place.y - from.y) * y) / length : 0;
        const share = Math.max(0, Math.min(along, 1));
        return [Math.hypot(from.x + share * x - place.x, from.y + share * y - place.y), share];
    }

    /** The samples of each pass of the drive that come nearest to a place in the view, if near. */
    function passesNear(place, view) {
        const samples = route.length > 0 ? route.map((point, id) => ({ id, point })) : live;
        const passes = [];
        let last = null;
        for (const { id, point } of samples) {
            const pixel = point && pixelOf(point, view);
            if (!pixel) {
                last = null;
                continue;
            }
            const leg = last && id - last.id <= LARGEST_STEP ? last : { id, pixel };
            const [distance, share] = distanceToLeg(place, leg.pixel, pixel);
            last = { id, pixel };
            if (distance > NEAR_PX)
                continue;
            const found = { id: share < 0.5 ? leg.id : id, distance, lastId: id };
            const before = passes[passes.length - 1];
            if (!before || leg.id > before.lastId)
                passes.push(found);
            else if (distance < before.distance)
                passes[passes.length - 1] = found;
            else
                before.lastId = id;
        }
        return passes;
    }

    /**
     * The sample of the drive at a place of the page, which may be some pixels beside it; -1 if there
     * is none. Where the drive has passed several times, it is the pass nearest in time to the
     * sample that is played.
     */
    function sampleAt(x, y, played) {
        const view = provider && provider.bounds();
        const hit = document.elementFromPoint(x, y);
        if (!view || !hit || !mapElement.contains(hit) || hit.closest(`a, ${adapter.controls}`))
            return -1;
        const { left, top } = mapElement.getBoundingClientRect();
        const passes = passesNear({ x: x - left, y: y - top }, view);
        passes.sort((a, b) => Math.abs(a.id - played) - Math.abs(b.id - played));
        return passes.length > 0 ? passes[0].id : -1;
    }

    function showMapCenter(lng, lat) {
        wantedCentre = provider.point(lng, lat);
        wantsFit = false;
        keepsFit = false;
        wantsFollow = false;
        refresh();
    }

    function addSample(point, id) {
        // After a jump back, only what lies before is driven.
        while (live.length > 0 && live[live.length - 1].id >= id)
            live.pop();
        const last = live[live.length - 1];
        if (last && id - last.id > LARGEST_STEP)
            live.push({ id: last.id, point: null });
        live.push({ id, point });
        refresh('driven');
    }

    function moveTo(point) {
        position = point;
        wantsFollow = true;
        if (homeLng === null)
            homeLng = point.lng;
    }

    function mapAddPoint(lng, lat, id) {
        const point = fixAt(lng, lat);
        addSample(point, id);
        isLost = !point;
        if (point)
            moveTo(point);
    }

    /**
     * The sample has no fix. The last one before it was at this place, or there was none: null. In
     * the run of the drive the position stays where it was shown.
     */
    function mapLoseFix(lng, lat, id) {
        const last = live[live.length - 1];
        const isJump = !last || id < last.id || id - last.id > LARGEST_STEP;
        const point = lng === null ? null : fixAt(lng, lat);
        addSample(null, id);
        isLost = true;
        if (isJump && point) {
            moveTo(point);
        } else if (isJump) {
            position = null;
            wantsFollow = false;
        }
    }

    /** What a recording without telemetry has instead of a drive; it needs no provider. */
    function mapMissTelemetry(isMissing) {
        emptyElement.textContent = isMissing ? texts.noTelemetry : '';
    }

    function loadAllGpsDataOfVideo(lng, lat, index, count) {
        if (index === 0) {
            incoming = [];
            setRoute([]);
        }
        if (index !== incoming.length)
            return; // The beginning of this route was sent to an earlier page.
        incoming.push(fixAt(lng, lat));
        if (incoming.length === count) {
            setRoute(incoming);
            incoming = [];
        }
    }

    function setRoute(points) {
        route = points;
        decisive = withoutWildFixes(points);
        homeLng = (decisive[0] || position || { lng: null }).lng;
        wantsFit = decisive.length > 0;
        keepsFit = false;
        isPlaced = isPlaced || wantsFit;
        refresh('route', 'driven');
    }

    function mapClearAll() {
        held = held.filter((call) => call.run === showMapCenter);
        incoming = [];
        live = [];
        position = null;
        isLost = false;
        isPlaced = false;
        wantsFollow = false;
        if (provider)
            setRoute([]);
    }

    /** Holds calls back until the provider is ready. */
    function whenReady(run) {
        return (...args) => {
            if (provider)
                run(...args);
            else
                held.push({ run, args });
        };
    }

    /** Shows a text about the provider instead of the map. */
    function fail(textName) {
        clearTimeout(timeout);
        const sentence = texts[textName].replace('{map}', texts[adapter.key]);
        const text = document.createElement('span');
        text.append(sentence);
        if (KEY_FAULTS.includes(textName))
            text.append('\n\n' + texts.keyHint + '\n', pathElement());
        messageElement.textContent = '';
        messageElement.append(text);
        messageElement.hidden = false;
    }

    /**
     * The path of the user's file with keys. A click selects and copies it: neither the keyboard
     * nor a menu reaches the map.
     */
    function pathElement() {
        const element = document.createElement('bdi');
        element.dir = 'ltr';
        element.className = 'path';
        element.textContent = keyFile;
        element.addEventListener('click', () => document.execCommand('copy'));
        return element;
    }

    /** A quiet line in the corner of the map; without a name of a text there is none. */
    function note(textName) {
        noteElement.textContent = textName ? texts[textName] : '';
    }

    /** Makes the map and carries out the calls that were held back; late is better than never. */
    function providerReady() {
        clearTimeout(timeout);
        try {
            adapter.create(mapElement);
        } catch (error) {
            console.error(error);
            fail(adapter.scriptUrl ? 'noAnswer' : 'filesMissing');
            return;
        }
        provider = adapter;
        messageElement.hidden = true;
        held.forEach(({ run, args }) => run(...args));
        held = [];
    }

    function loadProvider() {
        const script = document.createElement('script');
        script.src = adapter.scriptUrl(encodeURIComponent(keys[adapter.key]), language);
        script.onerror = () => fail('noAnswer');
        timeout = setTimeout(fail, PROVIDER_TIMEOUT_MS, 'noAnswer');
        document.head.append(script);
    }

    function use(pageAdapter) {
        adapter = pageAdapter;
        if (!adapter.scriptUrl)
            providerReady();
        else if (!keys[adapter.key])
            fail('keyMissing');
        else // A server that never answers must not keep the page from counting as loaded.
            window.addEventListener('load', () => setTimeout(loadProvider));
    }

    /** What the page shows, in the provider's datum. */
    function state() {
        const count = (segments) => segments.reduce((sum, segment) => sum + segment.length, 0);
        const { routeSegments, drivenSegments } = shown;
        return {
            message: messageElement.hidden ? '' : messageElement.textContent,
            note: noteElement.textContent,
            empty: emptyElement.textContent,
            held: held.length,
            frames: shown.frames,
            fits: shown.fits,
            routePoints: count(routeSegments),
            routeSegments: routeSegments.length,
            routeBounds: boundsOf(routeSegments),
            fitBounds: shown.fitBounds,
            drivenPoints: count(drivenSegments),
            drivenSegments: drivenSegments.length,
            drivenBounds: boundsOf(drivenSegments),
            position: shown.position && [shown.position.lng, shown.position.lat],
            isLost: shown.isLost,
            view: provider && provider.bounds(),
        };
    }

    /** A route that is shown as a whole stays so, in a parked view that comes back as well. */
    function onResize() {
        if (!provider)
            return;
        wantsFit = wantsFit || keepsFit;
        refresh('size');
    }

    function touched() {
        lastTouchMs = performance.now();
    }

    function onViewMoved() {
        touched();
        keepsFit = false;
    }

    function onPress(event) {
        touched();
        pressedAt = event;
    }

    function onMove({ buttons, clientX, clientY }) {
        if (buttons !== 0 && pressedAt
            && Math.hypot(clientX - pressedAt.clientX, clientY - pressedAt.clientY) > DRAG_PX)
            onViewMoved();
    }

    function onClick({ target }) {
        if (target.closest(adapter.controls))
            onViewMoved();
    }

    window.showMapCenter = whenReady(showMapCenter);
    window.mapAddPoint = whenReady(mapAddPoint);
    window.loadAllGpsDataOfVideo = whenReady(loadAllGpsDataOfVideo);
    window.mapClearAll = mapClearAll;
    window.mapLoseFix = whenReady(mapLoseFix);
    window.mapMissTelemetry = mapMissTelemetry;
    window.addEventListener('resize', onResize);
    const gestures = {
        pointerdown: onPress,
        pointermove: onMove,
        pointerup: touched,
        wheel: onViewMoved,
        dblclick: onViewMoved,
        click: onClick,
    };
    for (const [event, react] of Object.entries(gestures))
        mapElement.addEventListener(event, react, { capture: true, passive: true });

    return {
        LINES,
        MARKS,
        texts,
        textsIn,
        shortWay,
        wgsToGcj,
        gcjToBd,
        use,
        providerReady,
        fail,
        note,
        sampleAt,
        state,
    };
})();
