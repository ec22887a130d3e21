#ifdef GL_ES
attribute vec4 inVertexPosition;
attribute vec3 inVertexNormal;
attribute vec4 inVertexColor;
#define gl_Vertex inVertexPosition
#define gl_Normal inVertexNormal
#define gl_Color inVertexColor
#endif

uniform mat4 uWVPMatrix;
uniform mat4 uWMatrix;
uniform mat4 uNMatrix;
uniform float uThickness;
// Where another mesh covers this one: its middle (x, z) and half side in this mesh's metres, and how far to sink there.
uniform vec4 uCovered;

varying vec3 vNormal;
varying float vElevation;
varying float vKnown;

void main() {
    vec4 place = gl_Vertex;
    vec2 away = abs(place.xz - uCovered.xy);
    place.y -= max(away.x, away.y) < uCovered.z ? uCovered.w : 0.0;
    gl_Position = uWVPMatrix * place;
    vNormal = (uNMatrix * vec4(gl_Normal, 0.0)).xyz;
    vElevation = (uWMatrix * gl_Vertex).y;
    vKnown = gl_Color.r;
    gl_PointSize = uThickness;
}
